// The program: puts the parts together and takes them apart in the right order.
#pragma once

#include <wx/app.h>

#include <memory>

#include "workbench/model/CommandLine.h"

namespace kestrel::workbench {

/// The exit codes of the program.
inline constexpr int kExitFailed = 1;
inline constexpr int kExitUsage = 2;
inline constexpr int kExitNoDisplay = 3;

class IPlayer;
class TMainFrame;
class TIdeServices;
class TPackageLoader;
class TModalStack;
class TOpenMenus;

class TWorkbenchApp final : public wxApp {
 public:
  /// `player`, borrowed, is null unless it plays.
  TWorkbenchApp(TCommandLine line, IPlayer* player);
  ~TWorkbenchApp() override;
  bool OnInit() override;
  int OnRun() override;
  /// A handler of some window let an exception out: the user hears of it, the program goes on.
  bool OnExceptionInMainLoop() override;
  /// The toolkit found itself misused: a line for the user, instead of a box that stops everything.
  void OnAssertFailure(const wxChar* file, int line, const wxChar* function, const wxChar* condition,
                       const wxChar* message) override;
  /// Closes the menus and cancels the dialogs that are open, then ends the program without asking about unsaved changes.
  void EndProgram(int exitCode);

 private:
  void Log(const std::string& line);
  /// Finalizes and unloads the packages and deletes the windows, once.
  void ShutDown();
  /// The system asks whether the user may log off: the same as Exit.
  void OnQueryEndSession(wxCloseEvent& event);
  /// The user logs off: the system ends the process when this returns, so everything is taken apart here.
  void OnEndSession(wxCloseEvent& event);
  void EndStep();

  TCommandLine line_;
  IPlayer* player_;
  std::unique_ptr<TModalStack> modals_;
  std::unique_ptr<TOpenMenus> menus_;
  std::unique_ptr<TIdeServices> services_;
  std::unique_ptr<TPackageLoader> packages_;
  std::vector<std::string> early_;  // lines from before there was a message pane
  TMainFrame* frame_ = nullptr;
  bool shutDown_ = false;
  int exitCode_ = 0;
  int endSteps_ = 0;
};

}  // namespace kestrel::workbench
