// scc-provider-host: loads a provider and carries out its calls for the library that started this program.
#include <wx/app.h>
#include <wx/evtloop.h>
#include <wx/init.h>

#include <cstdlib>
#include <memory>

#include "Carry.h"
#include "HostOwner.h"
#include "Link.h"
#include "Loop.h"
#include "Toolkit.h"
#include "workbench/macro/PlayedWindows.h"
#include "workbench/macro/ProviderWindows.h"

namespace {

using namespace isolation;

class HostApp final : public wxApp {
 public:
  HostApp() { SetExitOnFrameDelete(false); }
};

/// One frame; false for the last one.
bool Serve() {
  const auto frame = link::Read();
  if (frame.Of == Kind::Call) link::Write(Kind::Answer, Carry(frame.Body));
  return frame.Of != Kind::Bye;
}

}  // namespace

int main(int argc, char** argv) {
  link::Take();
  const bool windows = ToolkitStarts(&argc, &argv);
  wxAppConsole::SetInstance(windows ? static_cast<wxAppConsole*>(new HostApp) : new wxAppConsole);
  if (argc < 1 || !wxEntryStart(argc, argv)) return 1;
  std::unique_ptr<TPlayedWindows> played;
  if (windows) {
    WatchWindows();
    if (const char* folder = std::getenv(kPlayedFolder)) played = std::make_unique<TPlayedWindows>(folder);
  }
  const auto fault = LoadProvider(argv[1] != nullptr ? argv[1] : "");
  link::Write(Kind::Hello, Body(fault));
  ServeUntilBye(windows, Serve);
  link::Leave();
  played.reset();
  wxEntryCleanup();
}
