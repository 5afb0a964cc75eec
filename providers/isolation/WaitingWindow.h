// The window that says what is waited for, with a way out.
#pragma once

#include <chrono>

#include "Waiting.h"

namespace isolation {

/// The window's name, for programs that work the windows of the client.
constexpr const char* kWaitingWindow = "SccWaiting";

/// Shows it until the call is over (true) or the provider shows a window of its own.
bool ShowWaiting(const Wait& wait, std::chrono::steady_clock::time_point begun);

}  // namespace isolation
