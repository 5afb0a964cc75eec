// scc-provider-host: loads a provider and carries out its calls for the library that started this program.
#include <wx/app.h>
#include <wx/evtloop.h>
#include <wx/init.h>

#include <memory>

#include "Carry.h"
#include "HostOwner.h"
#include "Link.h"
#include "Loop.h"
#include "Toolkit.h"

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
  if (windows) WatchWindows();
  const auto fault = LoadProvider(argv[1] != nullptr ? argv[1] : "");
  link::Write(Kind::Hello, Body(fault));
  ServeUntilBye(windows, Serve);
  link::Leave();
  wxEntryCleanup();
}
