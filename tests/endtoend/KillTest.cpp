// The Subversion provider's process is killed in the middle of its work.

#include <algorithm>
#include <csignal>
#include <cstdlib>
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
  ASSERT_EQ(scc::SCC_OK, ann.Open(repository.Url(), "project")) << ann.Said();
  std::vector<std::string> names;
  for (int i = 0; i < 40; ++i) names.push_back("deep/unit" + std::to_string(i) + ".pas");
  for (const auto& name : names) ann.Write(name, "0\n");
  ASSERT_EQ(scc::SCC_OK, ann.Add(names)) << ann.Said();

  std::mt19937 random(7);
  for (int round = 0; round < Rounds(); ++round) {
    SCOPED_TRACE(round);
    const auto delay = std::chrono::microseconds(random() % 250'000);
    const auto children = isolation::ChildProcessIds();
    std::thread killer([&] {
      std::this_thread::sleep_for(delay);
      for (const pid_t child : children) kill(child, SIGKILL);
    });
    switch (round % 3) {
      case 0:
        ann.CheckOut(names);
        break;
      case 1:
        ann.CheckOut(names);
        for (const auto& name : names)
          if (ann.IsWritable(name)) ann.Write(name, std::to_string(round) + "\n");
        ann.CheckIn(names);
        break;
      default:
        ann.GetEverything();
    }
    killer.join();
    ann.QuickDiff(names.front());  // the end may still be on its way
    ASSERT_EQ(scc::SCC_OK, ann.GetEverything()) << ann.Said();
    // A lock that the repository has and the folder never heard of is another folder's, as far as anybody can tell.
    ASSERT_THAT(ann.CheckOut({names.front()}), testing::AnyOf(scc::SCC_OK, scc::SCC_E_ALREADYCHECKEDOUT))
        << ann.Said();
    ann.Undo(names);
  }
  EXPECT_EQ(0, RunProgram("/usr/bin/svnadmin", {"verify", "-q", repository.Folder()}).Status);
}

}  // namespace

}  // namespace kestrel::svnscc
