// The Subversion provider's process is killed in the middle of its work.

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <functional>
#include <iostream>
#include <random>
#include <thread>

#include "isolation/ChildProcesses.h"
#include "subversion/Developer.h"
#include "support/Environment.h"
#include "support/RunProgram.h"

namespace kestrel::svnscc {

namespace {

/// How often; more when the environment says so.
int Rounds() {
  const char* const rounds = std::getenv("KESTREL_KILLS");
  return rounds != nullptr ? std::atoi(rounds) : 12;
}

TEST(Kills, AtAnyMomentCostNeitherTheClientNorTheWorkingCopy) {
  const TEnvironmentVariable isolated("KESTREL_ISOLATED_PROVIDER", ISOLATED_SUBVERSION);
  const TTestRepository repository;
  TDeveloper ann("ann");
  ASSERT_EQ(SCC_OK, ann.Open(repository.Url(), "project")) << ann.Said();
  NameList names;
  for (int i = 0; i < 40; ++i) names.push_back("deep/unit" + std::to_string(i) + ".pas");
  ann.AddNew(names, "0\n");

  using Clock = std::chrono::steady_clock;
  const std::function<Long()> commands[] = {[&] { return ann.CheckOut(names); },
                                            [&] { return ann.CheckIn(names); },
                                            [&] { return ann.GetEverything(); }};
  Clock::duration longest[3] = {};  // of each command, so that the kills hit it
  std::mt19937 random(7);
  int hits = 0;
  for (int round = 0; round < Rounds(); ++round) {
    SCOPED_TRACE(round);
    const auto command = static_cast<std::size_t>(round % 3);
    if (command == 1) {
      ann.CheckOut(names);
      for (const auto& name : names)
        if (ann.IsWritable(name)) ann.Write(name, std::to_string(round) + "\n");
    } else if (command == 2) {
      RunProgram("/usr/bin/svn", {"update", "-q", "-r", "1", ann.Folder()});
    }
    const auto delay = longest[command] * (random() % 100) / 100;
    const auto children = isolation::ChildProcessIds();
    std::thread killer([&] {
      std::this_thread::sleep_for(delay);
      for (const pid_t child : children) kill(child, SIGKILL);
    });
    const auto begun = Clock::now();
    hits += commands[command]() == SCC_E_NONSPECIFICERROR;
    longest[command] = std::max(longest[command], Clock::now() - begun);
    killer.join();
    ann.Diff(names.front());  // the end may still be on its way
    ASSERT_EQ(SCC_OK, ann.GetEverything()) << ann.Said();
    // A lock that the repository has and the folder never heard of is another folder's, as far as anybody can tell.
    ASSERT_THAT(ann.CheckOut({names.front()}), testing::AnyOf(SCC_OK, SCC_E_ALREADYCHECKEDOUT)) << ann.Said();
    ann.Undo(names);
  }
  std::cout << hits << " of " << Rounds() << " kills ended a call\n";
  EXPECT_EQ(0, RunProgram("/usr/bin/svnadmin", {"verify", "-q", repository.Folder()}).Status);
}

}  // namespace

}  // namespace kestrel::svnscc
