#include <dlfcn.h>

#include "Place.h"

namespace isolation {

std::string OwnPlaceFile() {
  Dl_info library{};
  dladdr(reinterpret_cast<void*>(&OwnPlaceFile), &library);
  const std::string path = library.dli_fname != nullptr ? library.dli_fname : "";
  return path.substr(0, path.rfind('.')) + kPlaceExtension;
}

}  // namespace isolation
