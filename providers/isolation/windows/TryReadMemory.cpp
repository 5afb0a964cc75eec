#include "isolation/TryReadMemory.h"

#include "system/windows/Api.h"

namespace kestrel::isolation {

bool TryReadMemory(const void* from, void* to, std::size_t size) {
  SIZE_T read = 0;
  return ReadProcessMemory(GetCurrentProcess(), from, to, size, &read) != 0 && read == size;
}

}  // namespace kestrel::isolation
