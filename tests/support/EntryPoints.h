// A provider's library, loaded as any client of the API loads it.
#pragma once

#include <stdexcept>
#include <string>

#include "scc/sccdefs.h"
#include "system/Library.h"

namespace kestrel {
namespace scc {

/// The exported functions of one library, null where it lacks one.
struct EntryPoints {
  explicit EntryPoints(TModuleHandle module) {
#define SCC_ENTRY(variable, name, result, arguments) \
  variable = reinterpret_cast<decltype(variable)>(FindSymbol(module, name));
#include "scc/entry_points.def"
#undef SCC_ENTRY
  }
#define SCC_ENTRY(variable, name, result, arguments) result(SCC_CALL* variable) arguments;
#include "scc/entry_points.def"
#undef SCC_ENTRY
};

}  // namespace scc

/// Loads the library; throws std::runtime_error with the loader's message.
inline TModuleHandle RequireModule(const std::string& path) {
  std::string error;
  const auto module = LoadModule(path, &error);
  if (!module) throw std::runtime_error(error);
  return module;
}

}  // namespace kestrel
