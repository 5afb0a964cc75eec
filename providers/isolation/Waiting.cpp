#include "Waiting.h"

#include <wx/app.h>
#include <wx/thread.h>

#include "UserInput.h"
#include "WaitingWindow.h"
#include "host/WxWaiting.h"

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

/// Until the call is over, or has gone on for `patience` without a window of the provider.  Whether it is over.
bool PaintUntil(const Wait& wait, Clock::duration patience) {
  const TNoClosing noClosing;
  auto since = Clock::now();
  while (Clock::now() - since < patience) {
    if (wait.Step(kTick)) return true;
    PaintPending();
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
