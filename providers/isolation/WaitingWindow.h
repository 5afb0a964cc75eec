// The window that shows which call is running and offers to stop it.
#pragma once

#include <chrono>

#include "isolation/Waiting.h"

namespace kestrel::isolation {

/// The window's name, by which other programs recognise it.
constexpr const char* kWaitingWindow = "SccWaiting";

/// Shows the window until the call has finished (returns true) or the provider shows a window of its own (false).
bool ShowWaitingWindow(const PendingCall& call, std::chrono::steady_clock::time_point begun);

}  // namespace kestrel::isolation
