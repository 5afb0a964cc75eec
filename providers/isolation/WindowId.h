// Window ids that are valid in other processes.
#pragma once

#include <cstdint>

#include "scc/sccdefs.h"

class wxWindow;

namespace kestrel::isolation {

/// Returns the system-wide id of the client's `window` if it has one (Windows), otherwise that of `fallback`; 0 for none.
std::uint64_t WindowId(scc::WindowHandle window, wxWindow* fallback);
/// Undoes what a process did to the window that owned its windows, after it was killed.
void ReleaseOwner(std::uint64_t window);

}  // namespace kestrel::isolation
