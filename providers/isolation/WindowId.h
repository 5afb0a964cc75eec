// Window ids that are valid in other processes.
#pragma once

#include <cstdint>

#include "scc/sccdefs.h"

class wxWindow;

namespace kestrel::isolation {

/// Returns the system-wide id of the client's `window` if it has one (Windows), otherwise that of `fallback`; 0 for none.
std::uint64_t WindowId(scc::WindowHandle window, wxWindow* fallback);

}  // namespace kestrel::isolation
