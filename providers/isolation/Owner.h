// The window of the client that the provider's windows belong to.
#pragma once

#include <cstdint>

#include "provider/sccdefs.h"

namespace isolation {

/// The system's number for the window that the user works in, as the provider's process needs it; 0 when there is none.
std::uint64_t OwnerFor(scc::WindowHandle window);

}  // namespace isolation
