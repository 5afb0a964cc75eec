// Painting windows during a long call.  User-interface thread only.
#pragma once

#include <wx/event.h>
#include <wx/eventfilter.h>
#include <wx/evtloop.h>

namespace kestrel {

/// Scoped: vetoes every close request, because closing a window could destroy objects that the call on the stack uses.
class TNoClosing final : private wxEventFilter {
 public:
  TNoClosing() { wxEvtHandler::AddFilter(this); }
  TNoClosing(const TNoClosing&) = delete;
  TNoClosing& operator=(const TNoClosing&) = delete;
  ~TNoClosing() override { wxEvtHandler::RemoveFilter(this); }

 private:
  int FilterEvent(wxEvent& event) override {
    if (event.GetEventType() != wxEVT_CLOSE_WINDOW) return Event_Skip;
    auto& close = static_cast<wxCloseEvent&>(event);
    if (!close.CanVeto()) return Event_Skip;
    close.Veto();
    return Event_Processed;
  }
};

/// Dispatches pending paint events.  Keyboard and mouse input stays queued.
inline void PaintPending() {
  auto* loop = wxEventLoopBase::GetActive();
  if (loop && !loop->IsYielding()) loop->YieldFor(wxEVT_CATEGORY_UI);
}

}  // namespace kestrel
