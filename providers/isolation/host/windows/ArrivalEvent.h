// The event by which the message loop notices frames.
#pragma once

#include "host/windows/Api.h"

namespace isolation::channel {

/// Starts to wait for a frame; the event is set when one begins to arrive.  Main thread, between calls.
HANDLE ArrivalEvent();

}  // namespace isolation::channel
