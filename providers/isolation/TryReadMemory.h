// Reads memory that may not be mapped.
#pragma once

#include <cstddef>

namespace kestrel::isolation {

/// Copies `size` bytes of this process; returns false if any of them cannot be read.
bool TryReadMemory(const void* from, void* to, std::size_t size);

}  // namespace kestrel::isolation
