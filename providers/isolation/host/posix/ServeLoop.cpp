#include "isolation/host/ServeLoop.h"

#include <wx/evtloop.h>
#include <wx/evtloopsrc.h>

#include <memory>

#include "isolation/host/Channel.h"

namespace kestrel::isolation {
namespace {

class Arrivals final : public wxEventLoopSourceHandler {
 public:
  Arrivals(wxEventLoop& loop, bool (*serve)()) : loop_(loop), serve_(serve) {}
  void OnReadWaiting() override {
    if (!serve_()) loop_.Exit();
  }
  void OnWriteWaiting() override {}
  void OnExceptionWaiting() override {}

 private:
  wxEventLoop& loop_;
  bool (*serve_)();
};

}  // namespace

void ServeUntilBye(bool windows, bool (*serve)()) {
  if (!windows) {
    while (serve()) {
    }
    return;
  }
  wxEventLoop loop;
  Arrivals arrivals(loop, serve);
  const std::unique_ptr<wxEventLoopSource> source(
      wxEventLoop::AddSourceForFD(channel::Descriptor(), &arrivals, wxEVENT_SOURCE_INPUT));
  loop.Run();
}

}  // namespace kestrel::isolation
