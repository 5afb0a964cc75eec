// Loading of shared libraries.
#pragma once

#include <string>

namespace kestrel {

/// A loaded library; null for none.
using TModuleHandle = void*;

/// Where Windows searches the dependencies of a library; ignored on POSIX.  The current directory and the program's are
/// never searched, because anybody could put a library of that name there.
enum class TDependencySearch {
  OwnFolder,     ///< the library's folder and the system's
  OwnFolderPath  ///< these, then the folders in PATH
};

/// Loads a library by its absolute path.  Returns null if the path is relative or the library cannot be loaded; `error`
/// (may be null) then receives the loader's message.
TModuleHandle LoadModule(const std::string& path, std::string* error = nullptr,
                         TDependencySearch search = TDependencySearch::OwnFolder);
/// The address of an exported symbol, or null.
void* FindSymbol(TModuleHandle module, const char* name);
/// The address width of the programs that can load a library, by its header: 32 or 64; 0 if unknown, always so on POSIX.
int LibraryBits(const std::string& path);
/// Releases a library once.  Null is allowed.
void UnloadModule(TModuleHandle module);

}  // namespace kestrel
