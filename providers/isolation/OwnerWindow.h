// The client's window that owns the windows of the provider.
#pragma once

#include <cstdint>

#include "scc/sccdefs.h"

namespace kestrel::isolation {

/// Returns the system-wide id of the owner: `window` if it is valid in other processes, otherwise the innermost modal dialog
/// or the active window.  0 if there is none.
std::uint64_t OwnerWindowId(scc::WindowHandle window);

}  // namespace kestrel::isolation
