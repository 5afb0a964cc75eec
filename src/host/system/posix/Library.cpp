#include "system/Library.h"

#include <dlfcn.h>

#include "system/Paths.h"

namespace kestrel {

TModuleHandle LoadModule(const std::string& path, std::string* error, TDependencySearch) {
  const bool absolute = IsAbsolutePath(path);
  // RTLD_NOW: missing symbols are reported here and do not end the program during a command.
  const auto module = absolute ? dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL) : nullptr;
  if (!module && error) *error = absolute ? dlerror() : path + ": not an absolute path";
  return module;
}

void* FindSymbol(TModuleHandle module, const char* name) { return module ? dlsym(module, name) : nullptr; }

int LibraryBits(const std::string&) { return 0; }

void UnloadModule(TModuleHandle module) {
  if (module) dlclose(module);
}

}  // namespace kestrel
