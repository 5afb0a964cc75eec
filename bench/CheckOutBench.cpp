// The whole check-out of N files without windows, against the bare provider calls that it makes.
//
//   tools/build release checkout_bench && build/release/bin/checkout_bench
//
// Time is the pipeline's.  Counters: bare_ms, the same provider calls made directly; ratio, pipeline to bare; growth,
// time against the size before (8 times fewer files).
#include <benchmark/benchmark.h>

#include <chrono>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>

#include "expert/SccExpert.h"
#include "host/Registry.h"
#include "provider/sccapi.h"
#include "support/Environment.h"
#include "support/ScriptedForms.h"
#include "support/ScriptedHost.h"
#include "support/ScriptedProvider.h"
#include "support/TemporaryFolder.h"

namespace {

using Clock = std::chrono::steady_clock;

double Milliseconds(Clock::duration duration) {
  return std::chrono::duration<double, std::milli>(duration).count();
}

/// A mapped project of exactly `files` files, open on a provider that answers at once.
class TBigProject {
 public:
  explicit TBigProject(std::size_t files) {
    provider_->Record = false;
    forms_.Recording = false;
    InstallProvider();
    const auto project = folder_.Write("work/App.qvxproj", "");
    folder_.Write("work/App.cdp", "[Scripted]\nProjName=trunk\n");
    const std::size_t projectFiles = 1 + PRJ_EXTENSIONS.size();
    std::vector<std::string> modules;
    for (std::size_t i = 0; i + projectFiles < files; ++i)  // include files have no companions
      modules.push_back(folder_ / ("work/source folder/include file " + std::to_string(i) + ".inc"));
    host_.AddProject(project, std::move(modules));
    expert_ = std::make_unique<TSccExpert>(forms_);
    host_.Notify(TOTAFileNotification::fnFileOpened, project);
    if (!expert_->ProviderList()) throw std::runtime_error("the project did not open");
    expert_->AddAssociatedFiles(&all_, false);
  }

  std::size_t Files() const { return all_.size(); }

  void CheckOutAll() {
    forms_.OnFileList.push_back([](TFileListModel& model) {
      model.ChangeAllCheckedStates(true);
      return mrOk;
    });
    forms_.OnComments.push_back([](TCommentModel& model) {
      model.Text = "measured";
      return mrOk;
    });
    expert_->CheckOutFiles({});
    host_.Log.clear();
  }

  /// What the provider is asked in CheckOutAll, without anything around it.
  void CallProviderBare() {
    std::vector<const char*> names;
    for (const auto& file : all_) names.push_back(file.c_str());
    std::vector<scc::Long> statuses(kMaxFiles);
    const auto count = static_cast<scc::Long>(names.size());
    const auto ignore = [](void*, scc::Bool, scc::Long, const char*) -> scc::Bool { return 1; };
    scc::SccPopulateList(Context(), scc::SCC_COMMAND_CHECKOUT, count, names.data(), ignore, nullptr,
                         statuses.data(), 0);
    scc::SccQueryInfo(Context(), count, names.data(), statuses.data());
    for (const char* name : names) scc::SccDiff(Context(), nullptr, name, 32, nullptr);
    for (const char* name : names) scc::SccCheckOut(Context(), nullptr, 1, &name, "measured", 0, nullptr);
  }

 private:
  // The scripted provider gives every client the same context.
  void* Context() { return &*provider_; }

  void InstallProvider() {
    TRegistry registry;
    registry.OpenKey("Software\\Scripted");
    registry.WriteString(kServerPath, ScriptedProviderLibrary::Path());
    registry.OpenKey(kInstalledProvidersKey);
    registry.WriteString("Scripted", "Software\\Scripted");
    registry.OpenKey(kProviderKey);
    registry.WriteString(kProviderRegKey, "Software\\Scripted");
  }

  TTemporaryFolder folder_;
  TEnvironmentVariable registry_{"CORVANE_REGISTRY_DIR", folder_.MakeFolder("registry").c_str()};
  ScriptedProviderLibrary provider_;
  TScriptedHost host_;
  TScriptedForms forms_;
  std::unique_ptr<TSccExpert> expert_;
  TStringList all_;
};

void CheckOut(benchmark::State& state) {
  TBigProject project(static_cast<std::size_t>(state.range(0)));
  double pipeline = 0;
  for (auto _ : state) {
    const auto start = Clock::now();
    project.CheckOutAll();
    pipeline += Milliseconds(Clock::now() - start);
  }
  pipeline /= static_cast<double>(state.iterations());

  constexpr int kBareRuns = 5;
  const auto start = Clock::now();
  for (int i = 0; i < kBareRuns; ++i) project.CallProviderBare();
  const double bare = Milliseconds(Clock::now() - start) / kBareRuns;

  static std::map<std::int64_t, double> measured;  // by size; the last of the calibration runs stays
  measured[state.range(0)] = pipeline;
  state.counters["files"] = static_cast<double>(project.Files());
  state.counters["bare_ms"] = bare;
  state.counters["ratio"] = pipeline / bare;
  if (const auto smaller = measured.find(state.range(0) / 8); smaller != measured.end())
    state.counters["growth"] = pipeline / smaller->second;
}
BENCHMARK(CheckOut)->Arg(1024)->Arg(8192)->Arg(65536)->Unit(benchmark::kMillisecond)->MinTime(2);

}  // namespace

BENCHMARK_MAIN();
