// The entry points of the loaded provider library, for the whole process.  User-interface thread only.
#pragma once

#include <string>

#include "scc/sccdefs.h"
#include "system/Library.h"

namespace kestrel::scc {

/// The loaded provider library; null if none is loaded.
extern TModuleHandle hSosScc;

// One variable per entry point; null if the library does not export it.  UnloadSCCDLL() leaves dangling pointers: call
// entry points through Invoke() only, which checks hSosScc.
#define SCC_ENTRY(variable, name, result, arguments) extern result(SCC_CALL* variable) arguments;
#include "scc/entry_points.def"
#undef SCC_ENTRY

// Slots for the two callbacks.  Part of the package's interface; no caller here: the add-in passes its callbacks as
// arguments.
extern TTextOutProc callBackTextOutProc;
extern TPopListFunc callBackPopListFunc;

/// Loads the provider library and binds all entry points.  If a library is loaded already, `path` is ignored and that
/// library is bound again, so that a second provider list shares it.  Returns whether a library is loaded; missing entry
/// points are not a failure.
bool LoadSCCDLL(const std::string& path);
/// Unloads the library if one is loaded.
void UnloadSCCDLL();

/// The address of any entry point.
using TEntry = void (*)();
/// The exported name of a bound entry point; empty for anything else.
std::string NameOf(TEntry entry);

/// The API version that the add-in implements: major in the high 16 bits, minor in the low 16.  Part of the package's
/// interface; no caller here.
Dword SCC_VER_NUM();
Dword SCC_GET_MAJOR_VER(Dword version);
Dword SCC_GET_MINOR_VER(Dword version);

}  // namespace kestrel::scc
