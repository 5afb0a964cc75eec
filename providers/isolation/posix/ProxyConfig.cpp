#include "isolation/ProxyConfig.h"

#include <dlfcn.h>

namespace kestrel::isolation {

std::string OwnConfigFile() {
  Dl_info library{};
  dladdr(reinterpret_cast<void*>(&OwnConfigFile), &library);
  const std::string path = library.dli_fname != nullptr ? library.dli_fname : "";
  return path.substr(0, path.rfind('.')) + kConfigExtension;
}

}  // namespace kestrel::isolation
