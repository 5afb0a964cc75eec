// Binding of one provider library: the process-wide table of its entry points.  Every call to a provider made anywhere
// in the add-in goes through this table.  User-interface thread only.
#pragma once

#include <string>

#include "scc/sccdefs.h"
#include "system/Library.h"

namespace kestrel::scc {

/// The loaded provider library; nullptr when none is loaded.
extern TModuleHandle hSosScc;

// One variable per entry point; null when the library does not export the name.  They stay as they are after
// UnloadSCCDLL, so nobody calls through them without a loaded library: use the session classes.
#define SCC_ENTRY(variable, name, result, arguments) extern result(SCC_CALL* variable) arguments;
#include "scc/entry_points.def"
#undef SCC_ENTRY

// Slots for the two callback types.  Declared for completeness of the binding and never assigned or called: the add-in
// passes its callbacks as arguments.
extern TTextOutProc callBackTextOutProc;
extern TPopListFunc callBackPopListFunc;

/// Loads the provider library and binds all entry points.  A library that is loaded already stays, whatever `path`
/// says, and is bound again: a second session list shares the first one's library.  False when nothing is loaded
/// afterwards; a name that is not exported is no failure.
bool LoadSCCDLL(const std::string& path);
/// Releases the library.  Does nothing when none is loaded.
void UnloadSCCDLL();

/// Any entry point, as an address only.
using TEntry = void (*)();
/// The exported name of a bound entry point; empty for anything else.
std::string NameOf(TEntry entry);

/// The interface version that the add-in implements: major in the high 16 bits, minor in the low 16.
Dword SCC_VER_NUM();
Dword SCC_GET_MAJOR_VER(Dword version);
Dword SCC_GET_MINOR_VER(Dword version);

}  // namespace kestrel::scc
