// Gives the windows of this process an owner in the client's process, and reports how many are shown.
#pragma once

#include <cstdint>

#include "scc/sccdefs.h"

namespace kestrel::isolation {

/// Makes `window` of the client own the windows that are shown from now on; 0 for none.  Returns the window handle to pass to
/// the provider.
scc::WindowHandle SetOwnerWindow(std::uint64_t window);
/// Installs the hooks.  To be called once the toolkit has been initialised.
void WatchWindows();

}  // namespace kestrel::isolation
