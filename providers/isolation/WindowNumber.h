// Windows as other processes know them.
#pragma once

#include <cstdint>

#include "provider/sccdefs.h"

class wxWindow;

namespace isolation {

/// The system's number for the window that a client has given, where that means something to another process, otherwise
/// for `front`; 0 for none.
std::uint64_t WindowNumber(scc::WindowHandle given, wxWindow* front);

}  // namespace isolation
