#include "workbench/windows/App.h"

#include <wx/image.h>
#include <wx/stdpaths.h>
#include <wx/timer.h>
#include <wx/uiaction.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>

#include "system/Paths.h"
#include "system/System.h"
#include "workbench/model/ModelStrings.h"
#include "workbench/model/PackageLoader.h"
#include "workbench/model/Settings.h"
#include "workbench/windows/FrameStrings.h"
#include "workbench/windows/IdeServices.h"
#include "workbench/windows/MainFrame.h"
#include "workbench/windows/ModalStack.h"
#include "workbench/windows/OpenMenus.h"
#include "workbench/windows/Player.h"
#include "workbench/windows/Toolkit.h"

namespace kestrel::workbench {

namespace {

constexpr const char* kDefaultPackage = "KestrelIDE" PACKAGE_SUFFIX;
constexpr int kEndStepMs = 50;
constexpr int kMaxEndSteps = 100;
constexpr int kExitTerminated = 128 + SIGTERM;

/// The packages to load: those asked for, else those of the settings, else the one beside the program.
std::vector<std::string> PackagesToLoad(const TCommandLine& line, TOptionsServices& options) {
  if (!line.Packages.empty()) return line.Packages;
  auto configured = SplitPaths(options.PropertySet(kGeneralSet).GetValue(kPackagesField));
  if (!configured.empty()) return configured;
  const std::string program = wxStandardPaths::Get().GetExecutablePath().utf8_string();
  const std::string beside = IncludeTrailingPathDelimiter(ExtractFileDir(program)) + kDefaultPackage;
  return FileExists(beside) ? std::vector{beside} : std::vector<std::string>();
}

/// Where the toolkit knows signals; elsewhere the system closes windows.
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
  services_ = std::make_unique<TIdeServices>([this](const std::string& line) { Log(line); });
  packages_ = std::make_unique<TPackageLoader>(services_->Caller());
  for (const auto& package : PackagesToLoad(line_, services_->Options())) packages_->Load(package);
  frame_ = new TMainFrame(*services_);
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
  // Nobody looks at the message pane of a program that fails to start its packages, or that is played.
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
  packages_->Finalize();  // with the frame alive: packages take their menus and windows away
  delete frame_;
  frame_ = nullptr;
  if (const std::size_t left = services_->DropRegistrations())
    Log(Format(sPackageLeftovers, {static_cast<long long>(left)}));
  DeletePendingObjects();  // windows of packages whose code is about to go
  packages_->Unload();
  SetBeepHandler({});
  services_.reset();
}

void TWorkbenchApp::OnQueryEndSession(wxCloseEvent& event) {
  if (!frame_ || !frame_->IsShown()) return;  // asked before, once for each window
  TOpenMenus::Close();
  // Exit cannot be chosen in a dialog, whose caller is in the middle of its work.
  if (TModalStack::Top() || !frame_->Close()) event.Veto();
}

void TWorkbenchApp::OnEndSession(wxCloseEvent&) {
  if (frame_ && !TModalStack::Top()) {
    if (frame_->IsShown()) frame_->Close(true);  // nobody was asked
    ShutDown();
  }
  std::fflush(nullptr);
  std::_Exit(exitCode_);  // the system ends the process anyway, and the window that was told is gone
}

void TWorkbenchApp::EndProgram(int exitCode) {
  exitCode_ = exitCode;
  EndStep();
}

void TWorkbenchApp::EndStep() {
  // A dialog returns to the code that opened it, and that may open the next one: so one per round.
  if (++endSteps_ > kMaxEndSteps) std::_Exit(exitCode_ ? exitCode_ : kExitFailed);
  wxDialog* dialog = TModalStack::Top();
  const bool menu = TOpenMenus::Any();
  // Code of a package that runs without a dialog shows a window of its own: it cannot be ended, only waited for.
  if (dialog || menu || services_->Caller().IsRunning()) {
    if (menu)
      TOpenMenus::Close();  // what opened it runs a loop of its own until then
    else if (dialog && dialog->IsModal())
      dialog->EndModal(wxID_CANCEL);
    else if (dialog)
      wxUIActionSimulator().Char(WXK_ESCAPE);  // a box of the system's own, which the toolkit cannot end
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
