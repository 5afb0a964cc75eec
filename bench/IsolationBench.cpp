// The Subversion provider loaded directly and in a process of its own, side by side; also a provider that does nothing.
//
//   tools/build release isolation_bench && build/release/bin/isolation_bench [FILES...]
//
// Prints a table: the best of several runs, in milliseconds (status, check-out) and microseconds (one call).
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <limits>
#include <memory>

#include "subversion/Developer.h"

using namespace kestrel;
using namespace kestrel::svnscc;

namespace {

double Best(int runs, const std::function<void()>& action) {
  double best = std::numeric_limits<double>::max();
  for (int i = 0; i < runs; ++i) {
    const auto begin = std::chrono::steady_clock::now();
    action();
    best = std::min(
        best, std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - begin).count());
  }
  return best;
}

struct TFigures {
  double Status, QuickDiff, CheckOut, Call;
};

TFigures Measure(TDeveloper& developer, const std::vector<std::string>& names) {
  constexpr double kMicroseconds = 1000;
  const auto& one = names.front();
  TFigures figures{};
  figures.Status = Best(7, [&] { developer.Statuses(names); });
  figures.QuickDiff = kMicroseconds * Best(300, [&] { developer.Diff(one); });
  figures.Call = kMicroseconds * Best(1000, [&] { developer.Library()->SccGetVersion(); });
  figures.CheckOut = std::numeric_limits<double>::max();
  for (int i = 0; i < 5; ++i) {
    figures.CheckOut = std::min(figures.CheckOut, Best(1, [&] { developer.CheckOut({one}); }));
    developer.Undo({one});
  }
  return figures;
}

void Compare(std::size_t count) {
  const TTestRepository repository;
  std::vector<std::string> names;
  for (std::size_t i = 0; i < count; ++i) names.push_back("unit" + std::to_string(i) + ".pas");
  unsetenv("KESTREL_ISOLATED_PROVIDER");
  TDeveloper ann("ann");
  ann.Open(repository.Url(), "project");
  for (const auto& name : names) ann.Write(name, "unit\n");
  ann.Add(names);
  const auto direct = Measure(ann, names);
  setenv("KESTREL_ISOLATED_PROVIDER", ISOLATED_SUBVERSION, 1);
  TDeveloper bob("bob", "other");
  bob.Open(repository.Url(), "project");
  bob.GetEverything();
  const auto isolated = Measure(bob, names);
  const struct {
    const char* What;
    double TFigures::*Figure;
    const char* Unit;
  } rows[] = {{"status of all", &TFigures::Status, "ms"},
              {"quick difference", &TFigures::QuickDiff, "us"},
              {"check-out of one", &TFigures::CheckOut, "ms"},
              {"SccGetVersion", &TFigures::Call, "us"}};
  for (const auto& row : rows)
    std::printf("| %zu | %s | %.1f %s | %.1f %s | %.2f |\n", count, row.What, direct.*row.Figure, row.Unit,
                isolated.*row.Figure, row.Unit, isolated.*row.Figure / direct.*row.Figure);
  std::fflush(stdout);
}

}  // namespace

int main(int argc, char** argv) {
  std::puts("| files | | direct | isolated | ratio |\n|---|---|---|---|---|");
  std::vector<std::size_t> counts;
  for (int i = 1; i < argc; ++i) counts.push_back(std::stoul(argv[i]));
  if (counts.empty()) counts = {1024, 8192, 65536};
  for (const auto count : counts) Compare(count);
}
