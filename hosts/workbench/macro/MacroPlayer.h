// Plays a macro on the running program, using only window titles, menu paths and control labels.
#pragma once

#include <wx/timer.h>
#include <wx/uiaction.h>
#include <wx/weakref.h>

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "workbench/macro/MacroOptions.h"
#include "workbench/macro/MacroParser.h"
#include "workbench/macro/MessageBoxes.h"
#include "workbench/macro/ProviderWindows.h"

class wxTopLevelWindow;

namespace kestrel::workbench {

class TMainFrame;

/// Executes one step per timer tick, also inside modal dialogs: a step that opens one returns only after the dialog
/// closes, and the following steps run meanwhile.
class TMacroPlayer final : public wxTimer {
 public:
  /// Starts at once. `end` is called once with the program's exit code.
  TMacroPlayer(TMainFrame& frame, const TMacroOptions& options, std::function<void(int)> end);
  void Notify() override;

 private:
  using TClock = std::chrono::steady_clock;
  using TAction = std::string (TMacroPlayer::*)(const std::vector<std::string>&);

  /// Executes the step; returns an empty string, or why it is not possible (yet).
  std::string Run(const TMacroStep& step);
  std::string RunCatching(const TMacroStep& step);
  void Fail(const TMacroStep& step, const std::string& reason);
  void End(int exitCode);
  long long Elapsed() const;
  /// Whether a provider call is running, during which a user cannot do anything either.
  bool IsCallRunning() const;
  /// The window that the user works in: the innermost dialog, else the window expected last, else the main window.
  wxTopLevelWindow& Front() const;
  std::string Screenshot(const std::string& file);

  using TArguments = std::vector<std::string>;
  std::string DoOpen(const TArguments& arguments);
  std::string DoClose(const TArguments& arguments);
  std::string DoActivate(const TArguments& arguments);
  std::string DoEdit(const TArguments& arguments);
  std::string DoSave(const TArguments& arguments);
  std::string DoSaveAll(const TArguments& arguments);
  std::string DoWriteFile(const TArguments& arguments);
  std::string DoSetReadOnly(const TArguments& arguments);
  std::string DoRefocus(const TArguments& arguments);
  std::string DoMenu(const TArguments& arguments);
  std::string DoFileMenu(const TArguments& arguments);
  std::string DoPoint(const TArguments& arguments);
  std::string DoClick(const TArguments& arguments);
  std::string DoExpect(const TArguments& arguments);
  std::string DoExpectNoDialog(const TArguments& arguments);
  std::string DoExpectMenu(const TArguments& arguments);
  std::string DoExpectNoMenu(const TArguments& arguments);
  std::string DoExpectMessage(const TArguments& arguments);
  std::string DoExpectEnabled(const TArguments& arguments);
  std::string DoExpectDisabled(const TArguments& arguments);
  std::string DoExpectHidden(const TArguments& arguments);
  std::string DoExpectFileEnabled(const TArguments& arguments);
  std::string DoExpectFileDisabled(const TArguments& arguments);
  std::string DoExpectState(const TArguments& arguments);
  std::string DoExpectEditor(const TArguments& arguments);
  std::string DoExpectFile(const TArguments& arguments);
  std::string DoExpectReadOnly(const TArguments& arguments);
  std::string DoExpectWritable(const TArguments& arguments);
  std::string DoExpectColumns(const TArguments& arguments);
  std::string DoPrintMessages(const TArguments& arguments);
  std::string DoRun(const TArguments& arguments);
  std::string DoScreenshot(const TArguments& arguments);
  std::string DoNote(const TArguments& arguments);
  std::string DoWait(const TArguments& arguments);
  std::string DoLimit(const TArguments& arguments);
  std::string DoQuit(const TArguments& arguments);

  TMainFrame& frame_;
  std::function<void(int)> end_;
  std::string screenshots_;
  TMessageBoxes messageBoxes_;
  TProviderWindows providerWindows_;
  std::vector<TMacroStep> steps_;
  std::size_t next_ = 0;
  std::unique_ptr<wxUIActionSimulator> input_;  // created by the first step that needs it
  bool retrying_ = false;
  bool ended_ = false;
  long long limitMs_;
  TClock::time_point started_;
  wxWeakRef<wxWindow> expected_;
};

}  // namespace kestrel::workbench
