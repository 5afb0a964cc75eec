// The walk over a tree of 100,000 files, against `find` over the same tree.
//
//   tools/build release walk_bench && build/release/bin/walk_bench
//
// Counters: find_ms, `find` with its start and with nobody reading what it prints; ratio, the walk to that.
#include <benchmark/benchmark.h>

#include <cstdlib>

#include "BigProject.h"
#include "wizards/FileSearch.h"

using namespace kestrel;
using namespace kestrel::addin;

namespace {

constexpr int kFiles = 100'000;
constexpr int kFilesEach = 100;

/// 1,000 directories of 100 files each, ten directories in one.
class TTree {
 public:
  TTree() {
    for (int i = 0; i < kFiles; ++i) {
      const auto directory = std::to_string(i / kFilesEach);
      std::string path = "tree";
      for (const char digit : directory) path.append("/folder ").append(1, digit);
      MakeFile(folder_ / (path + "/unit " + std::to_string(i) + ".pas"));
    }
  }
  std::string Path() const { return folder_ / "tree"; }

 private:
  TTemporaryFolder folder_;
};

double FindMilliseconds(const std::string& command) {
  constexpr int kRuns = 5;
  double all = 0;
  for (int i = 0; i < kRuns; ++i)
    all += Milliseconds([&] {
      if (std::system(command.c_str()) != 0) throw std::runtime_error(command + " failed");
    });
  return all / kRuns;
}

void Walk(benchmark::State& state, void (*search)(TStringList&, const std::string&), const char* only) {
  static const TTree tree;
  double walk = 0;
  std::size_t found = 0;
  for (auto _ : state) {
    TStringList target;
    walk += Milliseconds([&] { search(target, tree.Path()); });
    found = target.size();
  }
  const double find = FindMilliseconds("find '" + tree.Path() + "' " + only + " > /dev/null");
  state.counters["found"] = static_cast<double>(found);
  state.counters["find_ms"] = find;
  state.counters["ratio"] = walk / static_cast<double>(state.iterations()) / find;
}
BENCHMARK_CAPTURE(Walk, Entries, SearchRecursiveFiles, "")->Unit(benchmark::kMillisecond)->MinTime(2);
BENCHMARK_CAPTURE(Walk, Directories, SearchRecursiveDirectories, "-type d")
    ->Unit(benchmark::kMillisecond)
    ->MinTime(2);

}  // namespace

BENCHMARK_MAIN();
