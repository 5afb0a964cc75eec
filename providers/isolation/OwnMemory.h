// Reading what may not be there.
#pragma once

#include <cstddef>

namespace isolation {

/// Copies memory of this process; false, and nothing worse, where some of it is not there.
bool ReadOwnMemory(const void* from, void* to, std::size_t size);

}  // namespace isolation
