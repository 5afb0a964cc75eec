// Loading shared libraries.  Only the host library talks to the platform's loader.
#pragma once

#include <string>

#undef FreeModule  // a macro of Windows' headers, where they came first

/// A loaded library; nullptr is none.
using TModuleHandle = void*;

/// Loads a library by its absolute path.  nullptr when the path is relative or nothing loadable; then `error` (may be
/// nullptr) receives the loader's own words.
TModuleHandle LoadModule(const std::string& path, std::string* error = nullptr);
/// The address of an exported name, or nullptr.
void* FindSymbol(TModuleHandle module, const char* name);
/// Releases one LoadModule.  nullptr is allowed.
void FreeModule(TModuleHandle module);
