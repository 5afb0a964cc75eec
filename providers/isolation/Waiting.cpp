#include "Waiting.h"

#include <wx/app.h>
#include <wx/eventfilter.h>
#include <wx/evtloop.h>
#include <wx/thread.h>

#include "UserInput.h"
#include "WaitingWindow.h"

using namespace std::chrono_literals;

namespace isolation {
namespace {

using Clock = std::chrono::steady_clock;

constexpr auto kUnnoticed = 100ms;  // most calls are over by then
constexpr auto kPatience = 700ms;   // how long the user waits without being told
constexpr auto kTick = 10ms;

bool MayHandleEvents() {
  const auto* app = wxAppConsole::GetInstance();
  return app != nullptr && app->IsGUI() && wxIsMainThread();
}

/// No window of the client is closed while this lives: it would go with the call on the stack.
class NoClosing final : private wxEventFilter {
 public:
  NoClosing() { wxEvtHandler::AddFilter(this); }
  NoClosing(const NoClosing&) = delete;
  NoClosing& operator=(const NoClosing&) = delete;
  ~NoClosing() override { wxEvtHandler::RemoveFilter(this); }

 private:
  int FilterEvent(wxEvent& event) override {
    if (event.GetEventType() != wxEVT_CLOSE_WINDOW) return Event_Skip;
    auto& close = static_cast<wxCloseEvent&>(event);
    if (!close.CanVeto()) return Event_Skip;
    close.Veto();
    return Event_Processed;
  }
};

void Paint() {
  auto* loop = wxEventLoopBase::GetActive();
  if (loop != nullptr && !loop->IsYielding()) loop->YieldFor(wxEVT_CATEGORY_UI);
}

/// Until the call is over, or has gone on for `patience` without a window of the provider.  Whether it is over.
bool PaintUntil(const Wait& wait, Clock::duration patience) {
  const NoClosing noClosing;
  auto since = Clock::now();
  while (Clock::now() - since < patience) {
    if (wait.Step(kTick)) return true;
    Paint();
    if (!wait.ProviderShowsWindow()) continue;
    // The user is over there.  What is clicked here was not meant for later.
    DropUserInput();
    since = Clock::now();
  }
  return false;
}

}  // namespace

void Until(const Wait& wait) {
  if (!MayHandleEvents()) {
    while (!wait.Step(1h)) {
    }
    return;
  }
  const auto begun = Clock::now();
  if (wait.Step(kUnnoticed)) return;
  while (!PaintUntil(wait, kPatience - kUnnoticed))
    if (ShowWaiting(wait, begun)) return;
}

}  // namespace isolation
