// scc-provider-host: loads a provider and carries out its calls for the library that started this program.
#include <wx/app.h>
#include <wx/evtloop.h>
#include <wx/init.h>
#include <wx/log.h>

#include <cstdlib>
#include <memory>

#include "Carry.h"
#include "HostOwner.h"
#include "Link.h"
#include "Loop.h"
#include "host/System.h"
#include "workbench/macro/PlayedWindows.h"
#include "workbench/macro/ProviderWindows.h"

namespace {

using namespace isolation;

class HostApp final : public wxApp {
 public:
  HostApp() { SetExitOnFrameDelete(false); }
};

/// With windows if there is a display for them; whether the toolkit runs with them.
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

/// One frame; false for the last one.
bool Serve() {
  const auto frame = link::Read();
  if (frame.Of == Kind::Call) link::Write(Kind::Answer, Carry(frame.Body));
  if (IsDamaged()) std::_Exit(EXIT_FAILURE);
  return frame.Of != Kind::Bye;
}

}  // namespace

int main(int argc, char** argv) {
  const auto arguments = CommandLineArguments(argc, argv);
  if (arguments.empty()) return 2;  // the library starts it
  link::Take(arguments.back());
  const bool windows = StartToolkit(argc, argv);
  std::unique_ptr<TPlayedWindows> played;
  if (windows) {
    WatchWindows();
    if (const char* folder = std::getenv(kPlayedFolder)) played = std::make_unique<TPlayedWindows>(folder);
  }
  const auto fault = LoadProvider(arguments.front());
  link::Write(Kind::Hello, Body(fault));
  ServeUntilBye(windows, Serve);
  link::Leave();
  played.reset();
  wxEntryCleanup();
}
