// The event by which the message loop notices frames.
#pragma once

#include "system/windows/Api.h"

namespace kestrel::isolation::channel {

/// Starts to wait for a frame; the event is set when one begins to arrive.  Main thread, between calls.
HANDLE ArrivalEvent();

}  // namespace kestrel::isolation::channel
