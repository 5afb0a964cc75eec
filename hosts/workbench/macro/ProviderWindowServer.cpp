#include "workbench/macro/ProviderWindowServer.h"

#include <wx/dialog.h>

#include <filesystem>

#include "system/FileName.h"
#include "system/Paths.h"
#include "system/System.h"
#include "toolkit/WxText.h"
#include "workbench/macro/WindowFinder.h"
#include "workbench/macro/WindowSteps.h"

namespace kestrel::workbench {

namespace {

namespace fs = std::filesystem;

constexpr int kTickMs = 20;

wxTopLevelWindow* Front() {
  if (auto* dialog = TModalStack::Top()) return dialog;
  const auto shown = ShownWindows();
  return shown.empty() ? nullptr : shown.back();
}

std::string RunStep(const std::string& line, std::unique_ptr<wxUIActionSimulator>& input) {
  auto* const front = Front();
  if (front == nullptr) return "no window is open";
  try {
    const auto step = ParseMacro(line).at(0);
    if (step.Verb == TMacroVerb::Key && !input) input = std::make_unique<wxUIActionSimulator>();
    if (step.Verb != TMacroVerb::Expect) return RunInWindow(step, *front, input.get());
    std::string problem;
    ExpectWindow(step.Arguments[0], problem);
    return problem;
  } catch (const std::exception& error) {
    return error.what();
  }
}

}  // namespace

TProviderWindowServer::TProviderWindowServer(const std::string& folder) : folder_(folder) {
  std::error_code ignored;
  fs::remove(ToFilePath(ResolvePath(folder_, "front")), ignored);  // left by a process that was killed
  StartOnce(kTickMs);
}

TProviderWindowServer::~TProviderWindowServer() {
  std::error_code ignored;
  fs::remove(ToFilePath(ResolvePath(folder_, "front")), ignored);
}

void TProviderWindowServer::Notify() {
  StartOnce(kTickMs);  // before the step, which may open a dialog in which the next steps are executed
  ShowFront();
  const auto step = ResolvePath(folder_, "step");
  if (working_) Answer({});  // the step has opened a dialog
  if (!FileExists(step)) return;
  const auto line = ReadWholeFile(step);
  fs::remove(ToFilePath(step));
  working_ = true;
  const auto result = RunStep(line, input_);
  ShowFront();
  if (working_) Answer(result);
}

void TProviderWindowServer::Answer(const std::string& result) {
  working_ = false;
  WriteFileAtomically(ResolvePath(folder_, "answer"), result);
}

void TProviderWindowServer::ShowFront() {
  const auto* window = Front();
  const auto title = window != nullptr ? FromWx(window->GetTitle()) : std::string();
  if (title == front_) return;
  front_ = title;
  const auto file = ResolvePath(folder_, "front");
  std::error_code ignored;
  if (title.empty())
    fs::remove(ToFilePath(file), ignored);
  else
    WriteFileAtomically(file, title);
}

}  // namespace kestrel::workbench
