// What the message loop waits for besides messages.
#pragma once

#include "host/windows/Api.h"

namespace isolation::link {

/// Is set when a frame begins to arrive.  Main thread, between calls.
HANDLE ArrivalEvent();

}  // namespace isolation::link
