// Faults that no program survives, for a provider in a process of its own.
#pragma once

#include <string>

#include "scc/sccdefs.h"

namespace kestrel {

/// Does what the file that SCRIPTED_FAULTS names says: one line, "ENTRY FAULT".  Called at the beginning of every entry
/// point.  The file goes first, so that the next call is spared.
void CommitFault(const std::string& entry, scc::TTextOutProc textOut);

}  // namespace kestrel
