#include "workbench/windows/App.h"

#include <wx/image.h>
#include <wx/stdpaths.h>
#include <wx/timer.h>
#include <wx/uiaction.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>

#include "hosts/common/IdeServices.h"
#include "hosts/common/PackageLoader.h"
#include "hosts/common/PackageStrings.h"
#include "hosts/common/Toolkit.h"
#include "system/Paths.h"
#include "system/System.h"
#include "workbench/model/ModelStrings.h"
#include "workbench/model/Settings.h"
#include "workbench/windows/FrameStrings.h"
#include "workbench/windows/MainFrame.h"
#include "workbench/windows/ModalStack.h"
#include "workbench/windows/OpenMenus.h"
#include "workbench/windows/Player.h"

namespace kestrel::workbench {

namespace {

constexpr const char* kDefaultPackage = "KestrelIDE" PACKAGE_SUFFIX;
constexpr int kEndStepMs = 50;
constexpr int kMaxEndSteps = 100;
constexpr int kExitTerminated = 128 + SIGTERM;

/// The packages on the command line, else those of the options, else the one beside the program.
std::vector<std::string> PackagesToLoad(const TCommandLine& line, TOptionsServices& options) {
  if (!line.Packages.empty()) return line.Packages;
  auto configured = SplitPaths(options.PropertySet(kGeneralSet).GetValue(kPackagesField));
  if (!configured.empty()) return configured;
  const std::string program = wxStandardPaths::Get().GetExecutablePath().utf8_string();
  const std::string beside = IncludeTrailingPathDelimiter(ExtractFileDir(program)) + kDefaultPackage;
  return FileExists(beside) ? std::vector{beside} : std::vector<std::string>();
}

/// On ports with signals; elsewhere the system closes the windows.
void EndOnSignal(auto& app) {
  constexpr auto end = [](int) { static_cast<TWorkbenchApp&>(*wxTheApp).EndProgram(kExitTerminated); };
  if constexpr (requires { app.SetSignalHandler(SIGTERM, end); }) app.SetSignalHandler(SIGTERM, end);
}

}  // namespace

TWorkbenchApp::TWorkbenchApp(TCommandLine line, IPlayer* player) : line_(std::move(line)), player_(player) {}
TWorkbenchApp::~TWorkbenchApp() = default;

bool TWorkbenchApp::OnInit() {
  SetAppName("workbench");
  SetExitOnFrameDelete(false);
  wxImage::AddHandler(new wxPNGHandler);
  EndOnSignal(*this);
  Bind(wxEVT_QUERY_END_SESSION, &TWorkbenchApp::OnQueryEndSession, this);
  Bind(wxEVT_END_SESSION, &TWorkbenchApp::OnEndSession, this);
  ShowMenuImages();
  SetBeepHandler([](TBeep) { wxBell(); });
  modals_ = std::make_unique<TModalStack>();
  menus_ = std::make_unique<TOpenMenus>();
  services_ = std::make_unique<TIdeServices>(kSettingsKey, ResolvePath(ProgramFolder(), "help"),
                                             [this](const std::string& line) { Log(line); });
  packages_ = std::make_unique<TPackageLoader>(services_->Caller());
  for (const auto& package : PackagesToLoad(line_, services_->Options())) packages_->Load(package);
  frame_ = new TMainFrame(*services_, *packages_);
  SetTopWindow(frame_);
  for (const auto& line : early_) frame_->AddMessage(line);
  frame_->Show();
  services_->Caller().Run("MainFormCreated", [this] { services_->Application().MainFormCreated().Fire(); });
  frame_->PackageMenus().ShowAll();
  frame_->OfferPackageWindows();
  if (!line_.File.empty()) frame_->CallAfter([this] { frame_->OpenForUser(line_.File); });
  if (player_) player_->Start(*frame_, [this](int exitCode) { EndProgram(exitCode); });
  return true;
}

void TWorkbenchApp::Log(const std::string& line) {
  if (frame_)
    frame_->AddMessage(line);
  else
    early_.push_back(line);
  // Errors at start and messages during a macro go to stderr as well.
  if (!frame_ || player_) std::fprintf(stderr, "workbench: %s\n", line.c_str());
}

int TWorkbenchApp::OnRun() {
  wxApp::OnRun();
  ShutDown();
  return exitCode_;
}

bool TWorkbenchApp::OnExceptionInMainLoop() {
  services_->Caller().Run(sProgramName, [] { throw; });
  return true;
}

void TWorkbenchApp::OnAssertFailure(const wxChar* file, int line, const wxChar*, const wxChar* condition,
                                    const wxChar* message) {
  const wxString text = wxString::Format("%s(%d): %s %s", file, line, condition, message ? message : wxT(""));
  Log(text.utf8_string());
}

void TWorkbenchApp::ShutDown() {
  if (std::exchange(shutDown_, true)) return;
  if (player_) player_->Stop();
  packages_->Finalize();  // the frame still exists: packages remove their menus and windows
  delete frame_;
  frame_ = nullptr;
  if (const std::size_t left = services_->DropRegistrations())
    Log(Format(sPackageLeftovers, {static_cast<long long>(left)}));
  DeletePendingObjects();  // windows of packages that are unloaded next
  packages_->Unload();
  SetBeepHandler({});
  services_.reset();
}

void TWorkbenchApp::OnQueryEndSession(wxCloseEvent& event) {
  if (!frame_ || !frame_->IsShown()) return;  // already asked; the event comes once for each window
  TOpenMenus::Close();
  // A dialog cannot be closed for an exit, as its caller is in the middle of a command.
  if (TModalStack::Top() || !frame_->Close()) event.Veto();
}

void TWorkbenchApp::OnEndSession(wxCloseEvent&) {
  if (frame_ && !TModalStack::Top()) {
    if (frame_->IsShown()) frame_->Close(true);  // without a question: there was no query
    ShutDown();
  }
  std::fflush(nullptr);
  std::_Exit(
      exitCode_);  // the system ends the process anyway, and the window that got the event no longer exists
}

void TWorkbenchApp::EndProgram(int exitCode) {
  exitCode_ = exitCode;
  EndStep();
}

void TWorkbenchApp::EndStep() {
  // One dialog per step: it returns to its caller, which may open the next one.
  if (++endSteps_ > kMaxEndSteps) std::_Exit(exitCode_ ? exitCode_ : kExitFailed);
  wxDialog* dialog = TModalStack::Top();
  const bool menu = TOpenMenus::Any();
  // Package code that shows a modeless window cannot be ended, only waited for.
  if (dialog || menu || services_->Caller().IsRunning()) {
    if (menu)
      TOpenMenus::Close();  // its opener runs an event loop until then
    else if (dialog && dialog->IsModal())
      dialog->EndModal(wxID_CANCEL);
    else if (dialog)
      wxUIActionSimulator().Char(WXK_ESCAPE);  // a native box, which the toolkit cannot end
    else if (endSteps_ == 1)
      frame_->Close();  // vetoed, but an isolated provider that shows a window offers Stop then, in a dialog
    auto* next = new wxTimer;
    next->Bind(wxEVT_TIMER, [this, next](wxTimerEvent&) {
      CallAfter([next] { delete next; });
      CallAfter([this] { EndStep(); });
    });
    next->StartOnce(kEndStepMs);
    return;
  }
  frame_->Close(true);
}

}  // namespace kestrel::workbench
