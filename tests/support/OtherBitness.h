// A library as it is built for programs of the other bitness.
#pragma once

#include <cstdint>
#include <cstring>
#include <string>

namespace kestrel {

/// Changes the machine type in the header of a Windows library.
inline std::string ForTheOtherBitness(std::string library) {
  std::int32_t header = 0;
  std::memcpy(&header, library.data() + 0x3C, sizeof header);
  const std::uint16_t machine = sizeof(void*) == 4 ? 0x8664 : 0x014C;
  std::memcpy(library.data() + header + 4, &machine, sizeof machine);
  return library;
}

}  // namespace kestrel
