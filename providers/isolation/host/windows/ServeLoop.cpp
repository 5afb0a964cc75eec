#include "isolation/host/ServeLoop.h"

#include <wx/app.h>
#include <wx/evtloop.h>

#include "isolation/host/windows/ArrivalEvent.h"

namespace kestrel::isolation {

void ServeUntilBye(bool windows, bool (*serve)()) {
  if (!windows) {
    while (serve()) {
    }
    return;
  }
  wxEventLoop loop;
  const wxEventLoopActivator active(&loop);
  for (;;) {
    HANDLE arrival = channel::ArrivalEvent();
    if (MsgWaitForMultipleObjects(1, &arrival, FALSE, INFINITE, QS_ALLINPUT) == WAIT_OBJECT_0) {
      if (!serve()) return;
      continue;
    }
    while (loop.Pending()) loop.Dispatch();
    wxTheApp->ProcessPendingEvents();
    wxTheApp->ProcessIdle();
  }
}

}  // namespace kestrel::isolation
