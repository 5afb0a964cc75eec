#include "isolation/host/Host.h"

#include <wx/app.h>
#include <wx/evtloop.h>
#include <wx/init.h>
#include <wx/log.h>

#include <algorithm>
#include <memory>

#include "isolation/ProxyConfig.h"
#include "isolation/host/CallDispatcher.h"
#include "isolation/host/Channel.h"
#include "isolation/host/ServeLoop.h"
#include "isolation/host/WindowWatch.h"
#include "system/System.h"

namespace kestrel::isolation {

namespace {

class HostApp final : public wxApp {
 public:
  HostApp() { SetExitOnFrameDelete(false); }
};

/// Initialises the toolkit, without windows if there is no display.  Returns whether it has windows.
bool StartToolkit(int& argc, char** argv) {
  {
    const wxLogNull quiet;
    wxAppConsole::SetInstance(new HostApp);
    if (wxEntryStart(argc, argv)) return true;
  }
  wxAppConsole::SetInstance(new wxAppConsole);
  wxEntryStart(argc, argv);
  return false;
}

/// Handles one frame; returns false for the last one.
bool Serve() {
  const auto frame = channel::Read();
  if (frame.Kind == FrameKind::Call) channel::Write(FrameKind::Answer, DispatchCall(frame.Body));
  if (HasFaulted()) channel::EndProcess();
  return frame.Kind != FrameKind::Shutdown;
}

}  // namespace

int RunHost(int argc, char** argv, const PlayerMaker& makePlayer) {
  const auto arguments = CommandLineArguments(argc, argv);
  if (arguments.empty()) return 2;  // not started by the library
  channel::Open(arguments.back());
  const bool windows = StartToolkit(argc, argv);
  std::unique_ptr<wxEvtHandler> player;
  if (windows) {
    WatchWindows();
    if (makePlayer) player = makePlayer();
  }
  const bool searchPath = std::ranges::find(arguments, kSearchPathOption) != arguments.end();
  const auto fault = LoadProvider(
      arguments.front(), searchPath ? TDependencySearch::OwnFolderPath : TDependencySearch::OwnFolder);
  channel::Write(FrameKind::Hello, Serialize(fault));
  ServeUntilBye(windows, Serve);
  channel::ExpectClose();
  player.reset();
  wxEntryCleanup();
  return 0;
}

}  // namespace kestrel::isolation
