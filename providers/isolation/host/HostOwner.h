// The program's windows and the client's window that they belong to.
#pragma once

#include <cstdint>

#include "provider/sccdefs.h"

namespace isolation {

/// Windows that are shown from now on are owned by this window of another process; 0 for none.  What the provider is to be
/// given as its window.
scc::WindowHandle TakeOwner(std::uint64_t window);
/// Begins to look after the program's windows.  Once the toolkit runs.
void WatchWindows();

}  // namespace isolation
