// The whole check-out of N files without windows, against the bare provider calls that it makes.
//
//   tools/build release checkout_bench && build/release/bin/checkout_bench
//
// Time is the pipeline's.  Counters: bare_ms, the same provider calls made directly; ratio, pipeline to bare; growth,
// time against the size before (8 times fewer files).
#include <benchmark/benchmark.h>

#include "BigProject.h"

using namespace kestrel;
using namespace kestrel::addin;

namespace {

void CheckOutAll(TBigProject& project) {
  project.Forms.OnFileList.push_back([](TFileListModel& model) {
    model.ChangeAllCheckedStates(true);
    return mrOk;
  });
  project.Forms.OnComments.push_back([](TCommentModel& model) {
    model.Text = "measured";
    return mrOk;
  });
  project.Expert().CheckOutFiles({});
  project.Host.Log.clear();
}

/// What the provider is asked in CheckOutAll, without anything around it.
void CallProviderBare(TBigProject& project) {
  auto& names = project.Names();
  auto* context = project.Context();
  std::vector<scc::Long> statuses(kMaxFiles);
  const auto ignore = [](void*, scc::Bool, scc::Long, const char*) -> scc::Bool { return 1; };
  scc::SccPopulateList(context, scc::SCC_COMMAND_CHECKOUT, project.Count(), names.data(), ignore, nullptr,
                       statuses.data(), 0);
  scc::SccQueryInfo(context, project.Count(), names.data(), statuses.data());
  for (const char* name : names) scc::SccDiff(context, nullptr, name, 32, nullptr);
  for (const char* name : names) scc::SccCheckOut(context, nullptr, 1, &name, "measured", 0, nullptr);
}

void CheckOut(benchmark::State& state) {
  TBigProject project(static_cast<std::size_t>(state.range(0)), false);
  double pipeline = 0;
  for (auto _ : state) pipeline += Milliseconds([&] { CheckOutAll(project); });
  pipeline /= static_cast<double>(state.iterations());

  constexpr int kBareRuns = 5;
  double bare = 0;
  for (int i = 0; i < kBareRuns; ++i) bare += Milliseconds([&] { CallProviderBare(project); });
  static std::map<std::int64_t, double> measured;
  Report(state, project, pipeline, bare / kBareRuns, measured);
}
BENCHMARK(CheckOut)->Arg(1024)->Arg(8192)->Arg(65536)->Unit(benchmark::kMillisecond)->MinTime(2);

}  // namespace

BENCHMARK_MAIN();
