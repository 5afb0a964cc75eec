#include "isolation/TryReadMemory.h"

#include <sys/uio.h>
#include <unistd.h>

namespace kestrel::isolation {

bool TryReadMemory(const void* from, void* to, std::size_t size) {
  const iovec target{to, size};
  const iovec source{const_cast<void*>(from), size};
  return process_vm_readv(getpid(), &target, 1, &source, 1, 0) == static_cast<ssize_t>(size);
}

}  // namespace kestrel::isolation
