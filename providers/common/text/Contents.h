// One version of a file.
#pragma once

#include <string>

namespace kestrel {

struct Contents {
  std::string Bytes;
  bool IsBinary = false;  // by its type property, or because it contains a NUL
};

}  // namespace kestrel
