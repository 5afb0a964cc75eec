#include "isolation/Waiting.h"

#include <wx/app.h>
#include <wx/msgdlg.h>
#include <wx/thread.h>

#include "isolation/UserInput.h"
#include "isolation/WaitingWindow.h"
#include "toolkit/WxText.h"
#include "toolkit/WxWaiting.h"

using namespace std::chrono_literals;

namespace kestrel::isolation {
namespace {

using Clock = std::chrono::steady_clock;

constexpr auto kSilentWait = 100ms;   // most calls finish within this time
constexpr auto kWindowDelay = 700ms;  // from the start of the call to the waiting window
constexpr auto kTick = 10ms;

bool MayHandleEvents() {
  const auto* app = wxAppConsole::GetInstance();
  return app != nullptr && app->IsGUI() && wxIsMainThread();
}

/// Repaints until the call has finished (returns true) or `timeout` has passed without a window of the provider (false).
bool PaintDuringCall(PendingCall& call, Clock::duration timeout) {
  const TNoClosing noClosing;
  auto since = Clock::now();
  while (Clock::now() - since < timeout) {
    if (call.Step(kTick)) return true;
    PaintPending();
    // The user wants to close this program: the provider's window does not keep Stop away.
    if (noClosing.Vetoed()) call.ProviderShowsWindow = [] { return false; };
    if (!call.ProviderShowsWindow()) continue;
    // The user works in the provider's window; input to this program must not take effect after the call.
    DiscardUserInput();
    since = Clock::now();
  }
  return false;
}

}  // namespace

void WaitForCall(PendingCall call) {
  if (!MayHandleEvents()) {
    while (!call.Step(1h)) {
    }
    return;
  }
  const auto begun = Clock::now();
  if (call.Step(kSilentWait)) return;
  while (!PaintDuringCall(call, kWindowDelay - kSilentWait))
    if (ShowWaitingWindow(call, begun)) return;
}

bool ShowMessageBox(const std::string& provider, const std::string& text) {
  if (!MayHandleEvents()) return false;
  wxMessageBox(ToWx(text), ToWx(provider), wxOK | wxICON_WARNING);
  return true;
}

}  // namespace kestrel::isolation
