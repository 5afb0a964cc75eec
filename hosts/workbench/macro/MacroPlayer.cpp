#include "workbench/macro/MacroPlayer.h"

#include <wx/evtloop.h>

#include <cstdio>
#include <filesystem>

#include "system/FileName.h"
#include "system/Paths.h"
#include "system/System.h"
#include "workbench/macro/MacroStrings.h"
#include "workbench/macro/Screenshot.h"
#include "workbench/macro/WindowFinder.h"
#include "workbench/macro/WindowSteps.h"
#include "workbench/windows/App.h"
#include "workbench/windows/MainFrame.h"
#include "workbench/windows/ModalStack.h"

namespace kestrel::workbench {

namespace {

constexpr int kStepMs = 40;  // for layout and painting
constexpr int kRetryMs = 100;
constexpr int kStartMs = 300;
/// Ends a wait for something that never happens; a step continues as soon as it can.
constexpr long long kDefaultLimitMs = 60'000;
constexpr long long kSettleMs = 400;  // before a screenshot
constexpr const char* kProviderIsWaitedFor =
    "SccWaiting";  // name of the window that the isolating provider waits in
constexpr const char* kFailedPicture = "failed.png";

bool NeedsInput(TMacroVerb verb) {
  return verb == TMacroVerb::Key || verb == TMacroVerb::Point || verb == TMacroVerb::Click;
}

void Print(std::FILE* to, const std::string& line) {
  std::fprintf(to, "%s\n", line.c_str());
  std::fflush(to);
}

}  // namespace

TMacroPlayer::TMacroPlayer(TMainFrame& frame, const TMacroOptions& options, std::function<void(int)> end)
    : frame_(frame), end_(std::move(end)), screenshots_(options.Screenshots), limitMs_(kDefaultLimitMs) {
  try {
    steps_ = ParseMacro(ReadWholeFile(options.Macro));
    StartOnce(kStartMs);
  } catch (const std::exception& e) {
    Print(stderr, options.Macro + ": " + e.what());
    frame_.CallAfter([this] { End(kExitUsage); });
  }
}

long long TMacroPlayer::Elapsed() const {
  return std::chrono::duration_cast<std::chrono::milliseconds>(TClock::now() - started_).count();
}

bool TMacroPlayer::IsCallRunning() const {
  if (const wxDialog* dialog = TModalStack::Top()) return dialog->GetName() == kProviderIsWaitedFor;
  const auto* loop = wxEventLoopBase::GetActive();
  return loop && loop->IsYielding();
}

void TMacroPlayer::Notify() {
  if (ended_) return;
  if (IsCallRunning() && !providerWindows_.IsBusy() && providerWindows_.Front().empty()) {
    StartOnce(kRetryMs);
    return;
  }
  if (next_ == steps_.size()) {
    Print(stdout, Format(sMacroPassed, {static_cast<long long>(steps_.size())}));
    return End(0);
  }
  const std::size_t mine = next_++;
  const TMacroStep& step = steps_[mine];
  if (!retrying_) {
    started_ = TClock::now();
    Print(stdout, Format(sStepDone, {static_cast<long long>(step.Line), step.Text}));
  }
  retrying_ = false;
  // Under GTK creating it dispatches events, and a step executed meanwhile would overtake this one.
  if (!input_ && NeedsInput(step.Verb)) input_ = std::make_unique<wxUIActionSimulator>();
  StartOnce(kStepMs);  // before the step, which may run a modal dialog in which the next steps are executed
  const std::string problem = RunCatching(step);
  if (problem.empty() || ended_) return;
  if (next_ != mine + 1 || Elapsed() >= limitMs_) return Fail(step, problem);
  next_ = mine;
  retrying_ = true;
  StartOnce(kRetryMs);
}

std::string TMacroPlayer::RunCatching(const TMacroStep& step) {
  try {
    return Run(step);
  } catch (const std::exception& e) {
    limitMs_ = 0;  // an exception is final: no retry
    return e.what();
  }
}

void TMacroPlayer::Fail(const TMacroStep& step, const std::string& reason) {
  Print(stderr, Format(sStepFailed, {static_cast<long long>(step.Line), step.Text, reason}));
  Print(stderr, sOpenWindows);
  Print(stderr, DescribeWindows());
  Screenshot(kFailedPicture);
  End(kExitFailed);
}

void TMacroPlayer::End(int exitCode) {
  if (std::exchange(ended_, true)) return;
  Stop();
  end_(exitCode);
}

wxTopLevelWindow& TMacroPlayer::Front() const {
  if (wxDialog* dialog = TModalStack::Top()) return *dialog;
  if (auto* window = dynamic_cast<wxTopLevelWindow*>(expected_.get()); window && window->IsShown())
    return *window;
  return frame_;
}

std::string TMacroPlayer::Screenshot(const std::string& file) {
  const auto path = ResolvePath(screenshots_, file);
  std::error_code ignored;
  std::filesystem::create_directories(ToFilePath(ExtractFileDir(path)), ignored);
  return SaveScreenshot(path) ? std::string() : Format(sNoScreenshot, {path});
}

std::string TMacroPlayer::Run(const TMacroStep& step) {
  using P = TMacroPlayer;
  // Windows of a provider's process are in front of all others.
  if (providerWindows_.IsBusy()) return providerWindows_.Run(step);
  if (const auto front = providerWindows_.Front(); !front.empty()) {
    if (IsWindowStep(step.Verb) || step.Verb == TMacroVerb::Expect) return providerWindows_.Run(step);
    if (step.Verb == TMacroVerb::ExpectNoDialog) return Format(sDialogOpen, {front});
  }
  if (IsWindowStep(step.Verb)) return RunInWindow(step, Front(), input_.get());
  static constexpr TAction kActions[] = {// in the order of TMacroVerb; none for RunInWindow's
                                         &P::DoOpen,
                                         &P::DoClose,
                                         &P::DoActivate,
                                         &P::DoEdit,
                                         &P::DoSave,
                                         &P::DoSaveAll,
                                         &P::DoWriteFile,
                                         &P::DoSetReadOnly,
                                         &P::DoRefocus,
                                         &P::DoMenu,
                                         &P::DoFileMenu,
                                         nullptr,
                                         nullptr,
                                         nullptr,
                                         nullptr,
                                         nullptr,
                                         nullptr,
                                         nullptr,
                                         nullptr,
                                         nullptr,
                                         &P::DoPoint,
                                         &P::DoClick,
                                         &P::DoExpect,
                                         &P::DoExpectNoDialog,
                                         &P::DoExpectMenu,
                                         &P::DoExpectNoMenu,
                                         nullptr,
                                         nullptr,
                                         &P::DoExpectMessage,
                                         &P::DoExpectEnabled,
                                         &P::DoExpectDisabled,
                                         &P::DoExpectHidden,
                                         &P::DoExpectFileEnabled,
                                         &P::DoExpectFileDisabled,
                                         nullptr,
                                         nullptr,
                                         &P::DoExpectState,
                                         &P::DoExpectEditor,
                                         &P::DoExpectFile,
                                         &P::DoExpectReadOnly,
                                         &P::DoExpectWritable,
                                         nullptr,
                                         nullptr,
                                         &P::DoExpectColumns,
                                         &P::DoPrintMessages,
                                         &P::DoRun,
                                         &P::DoScreenshot,
                                         &P::DoNote,
                                         &P::DoWait,
                                         &P::DoLimit,
                                         &P::DoQuit};
  static_assert(std::size(kActions) == static_cast<std::size_t>(TMacroVerb::Quit) + 1);
  return (this->*kActions[static_cast<std::size_t>(step.Verb)])(step.Arguments);
}

std::string TMacroPlayer::DoScreenshot(const TArguments& arguments) {
  // Waits until windows are painted; the text is visible only if the limit is shorter.
  if (Elapsed() < kSettleMs) return sNotDone;
  return Screenshot(arguments[0]);
}

std::string TMacroPlayer::DoNote(const TArguments& arguments) {
  Print(stdout, arguments[0]);
  return {};
}

std::string TMacroPlayer::DoWait(const TArguments& arguments) {
  StartOnce(std::max(1, std::stoi(arguments[0])));
  return {};
}

std::string TMacroPlayer::DoLimit(const TArguments& arguments) {
  limitMs_ = std::stoi(arguments[0]);
  return {};
}

std::string TMacroPlayer::DoQuit(const TArguments&) {
  if (const wxDialog* dialog = TModalStack::Top())
    return Format(sDialogOpen, {dialog->GetTitle().utf8_string()});
  Print(stdout, Format(sMacroPassed, {static_cast<long long>(next_)}));
  End(0);
  return {};
}

}  // namespace kestrel::workbench
