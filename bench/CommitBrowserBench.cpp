// The commit browser with N rows, against the bare provider calls that it makes.  Needs a display:
//
//   tools/build release commit_browser_bench && xvfb-run -a build/release/bin/commit_browser_bench
//
// ShowBrowser: from the command to the painted window, every row a file on disk that the provider lists too.  CommitAll:
// the pass that checks in every row.  Counters as in CheckOutBench.cpp; the provider answers from memory at once, so the
// ratios are the worst there can be.
#include <benchmark/benchmark.h>
#include <wx/wx.h>

#include "BigProject.h"
#include "wizards/CommitBrowser.h"
#include "wizards/CommitGrid.h"
#include "wizards/CommitRunner.h"
#include "wizards/FileSearch.h"

using namespace kestrel;
using namespace kestrel::addin;

namespace {

void ListAll(TBigProject& project) {
  for (const auto& file : project.Files())
    project.Provider->List.push_back({true, scc::SCC_STATUS_CONTROLLED, file});
}

void ShowAndClose(TBigProject& project) {
  TCommitBrowser form(project.Expert().Context());
  bool painted = false;
  form.StringGrid1->GetGridWindow()->Bind(wxEVT_PAINT, [&](wxPaintEvent& event) {
    event.Skip();
    painted = true;
  });
  form.InitDialog();
  form.Show();
  while (!painted) wxYield();
  if (form.FRowCount != project.Count()) throw std::runtime_error("not all rows are there");
}

void AskBare(TBigProject& project, const TStringList& directories) {
  auto& names = project.Names();
  std::vector<const char*> places;
  for (const auto& directory : directories) places.push_back(directory.c_str());
  std::vector<scc::Long> statuses(kMaxFiles);
  const auto ignore = [](void*, scc::Bool, scc::Long, const char*) -> scc::Bool { return 1; };
  scc::SccPopulateList(project.Context(), scc::SCC_COMMAND_GET, static_cast<scc::Long>(places.size()),
                       places.data(), ignore, nullptr, statuses.data(), scc::SCC_PL_DIR);
  scc::SccQueryInfo(project.Context(), project.Count(), names.data(), statuses.data());
  for (const char* name : names)
    scc::SccDiff(project.Context(), nullptr, name, scc::SCC_DIFF_QD_CONTENTS, nullptr);
}

void ShowBrowser(benchmark::State& state) {
  TBigProject project(static_cast<std::size_t>(state.range(0)), true);
  ListAll(project);
  double whole = 0;
  for (auto _ : state) whole += Milliseconds([&] { ShowAndClose(project); });

  TStringList directories;
  SearchRecursiveDirectories(directories, project.Directory());
  constexpr int kBareRuns = 5;
  double bare = 0;
  for (int i = 0; i < kBareRuns; ++i) bare += Milliseconds([&] { AskBare(project, directories); });
  static std::map<std::int64_t, double> measured;
  Report(state, project, whole / static_cast<double>(state.iterations()), bare / kBareRuns, measured);
}
BENCHMARK(ShowBrowser)->Arg(1024)->Arg(8192)->Arg(65536)->Unit(benchmark::kMillisecond)->MinTime(2);

struct TNoProgress final : IProgress {
  void Step(std::size_t, const std::string&) override {}
};

void CommitAll(benchmark::State& state) {
  TBigProject project(static_cast<std::size_t>(state.range(0)), true);
  std::vector<TCommitRowData> rows;
  for (const auto& file : project.Files()) {
    if (file.ends_with(".qvxproj")) continue;  // or the host would open the whole project again
    rows.push_back({caCommit, {}, file, "measured"});
  }
  double whole = 0;
  for (auto _ : state)
    whole += Milliseconds([&] {
      RunCommit(project.Expert().Context(), rows, {}, std::make_unique<TNoProgress>());
      project.Host.Log.clear();
    });

  const double bare = Milliseconds([&] {
    for (const char* name : project.Names())
      scc::SccCheckin(project.Context(), nullptr, 1, &name, "measured", 0, nullptr);
  });
  static std::map<std::int64_t, double> measured;
  Report(state, project, whole / static_cast<double>(state.iterations()), bare, measured);
}
BENCHMARK(CommitAll)->Arg(1024)->Arg(8192)->Arg(65536)->Unit(benchmark::kMillisecond)->MinTime(2);

}  // namespace

namespace kestrel {

class TBenchApp final : public wxApp {
 public:
  bool OnInit() override {
    SetExitOnFrameDelete(false);
    return true;
  }
};

}  // namespace kestrel

wxIMPLEMENT_APP_NO_MAIN(kestrel::TBenchApp);

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  if (!wxEntryStart(argc, argv)) return 2;  // the toolkit has said why
  wxTheApp->CallOnInit();
  benchmark::RunSpecifiedBenchmarks();
  wxEntryCleanup();
}
