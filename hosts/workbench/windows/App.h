// The application: creates its parts and destroys them in the right order.
#pragma once

#include <wx/app.h>

#include <memory>

#include "workbench/model/CommandLine.h"

namespace kestrel {
class TIdeServices;
class TPackageLoader;
}  // namespace kestrel

namespace kestrel::workbench {

/// Exit codes.
inline constexpr int kExitFailed = 1;
inline constexpr int kExitUsage = 2;
inline constexpr int kExitNoDisplay = 3;

class IPlayer;
class TMainFrame;
class TModalStack;
class TOpenMenus;

class TWorkbenchApp final : public wxApp {
 public:
  /// `player` is borrowed, and null unless it plays.
  TWorkbenchApp(TCommandLine line, IPlayer* player);
  ~TWorkbenchApp() override;
  bool OnInit() override;
  int OnRun() override;
  /// Logs an exception that left an event handler and continues.
  bool OnExceptionInMainLoop() override;
  /// Logs a failed assertion of the toolkit instead of showing a box.
  void OnAssertFailure(const wxChar* file, int line, const wxChar* function, const wxChar* condition,
                       const wxChar* message) override;
  /// Closes menus, cancels dialogs and ends the program without asking about unsaved changes.
  void EndProgram(int exitCode);

 private:
  void Log(const std::string& line);
  /// Finalizes and unloads the packages and deletes the windows; does nothing the second time.
  void ShutDown();
  /// The system asks whether the user may log off; handled like Exit.
  void OnQueryEndSession(wxCloseEvent& event);
  /// The user logs off. The system ends the process when this returns, so everything is shut down here.
  void OnEndSession(wxCloseEvent& event);
  void EndStep();

  TCommandLine line_;
  IPlayer* player_;
  std::unique_ptr<TModalStack> modals_;
  std::unique_ptr<TOpenMenus> menus_;
  std::unique_ptr<TIdeServices> services_;
  std::unique_ptr<TPackageLoader> packages_;
  std::vector<std::string> early_;  // lines logged before there is a message pane
  TMainFrame* frame_ = nullptr;
  bool shutDown_ = false;
  int exitCode_ = 0;
  int endSteps_ = 0;
};

}  // namespace kestrel::workbench
