// Loading shared libraries.  Only the host library talks to the platform's loader.
#pragma once

#include <string>

namespace kestrel {

/// A loaded library; nullptr is none.
using TModuleHandle = void*;

/// Where a library's own dependencies are searched for on Windows; elsewhere the loader has rules of its own.  Never in
/// the current directory or the program's, where anybody could put something of the same name.
enum class TDependencySearch {
  OwnFolder,     ///< in the library's folder and the system's
  OwnFolderPath  ///< there, and in the folders that PATH names
};

/// Loads a library by its absolute path.  nullptr when the path is relative or nothing loadable; then `error` (may be
/// nullptr) receives the loader's own words.
TModuleHandle LoadModule(const std::string& path, std::string* error = nullptr,
                         TDependencySearch search = TDependencySearch::OwnFolder);
/// The address of an exported name, or nullptr.
void* FindSymbol(TModuleHandle module, const char* name);
/// Releases one LoadModule.  nullptr is allowed.
void UnloadModule(TModuleHandle module);

}  // namespace kestrel
