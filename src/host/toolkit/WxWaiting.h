// Painting windows during a long call.  User-interface thread only.
#pragma once

#include <wx/event.h>
#include <wx/eventfilter.h>
#include <wx/evtloop.h>
#include <wx/window.h>

namespace kestrel {

/// Scoped: vetoes every close request, because closing a window could destroy objects that the call on the stack uses.
class TNoClosing final : private wxEventFilter {
 public:
  TNoClosing() { wxEvtHandler::AddFilter(this); }
  TNoClosing(const TNoClosing&) = delete;
  TNoClosing& operator=(const TNoClosing&) = delete;
  ~TNoClosing() override { wxEvtHandler::RemoveFilter(this); }
  /// Whether a close request was vetoed.
  bool Vetoed() const { return vetoed_; }

 private:
  int FilterEvent(wxEvent& event) override {
    if (event.GetEventType() != wxEVT_CLOSE_WINDOW) return Event_Skip;
    auto& close = static_cast<wxCloseEvent&>(event);
    if (!close.CanVeto()) return Event_Skip;
    close.Veto();
    vetoed_ = true;
    return Event_Processed;
  }

  bool vetoed_ = false;
};

/// Dispatches pending events of these categories; others stay queued.
inline void DispatchPending(long categories) {
  auto* loop = wxEventLoopBase::GetActive();
  if (loop && !loop->IsYielding()) loop->YieldFor(categories);
}

/// Dispatches pending paint events.  Keyboard and mouse input stays queued.
inline void PaintPending() { DispatchPending(wxEVT_CATEGORY_UI); }

/// Paints `window` and dispatches input.  For windows that disable what must not be used meanwhile: input that stayed
/// queued would apply to what is shown after the call.
inline void DispatchInput(wxWindow& window) {
  window.Update();
  DispatchPending(wxEVT_CATEGORY_UI | wxEVT_CATEGORY_USER_INPUT);
}

}  // namespace kestrel
