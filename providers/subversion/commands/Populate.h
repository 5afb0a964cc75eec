// Fills a client's file list with the files that a command can work on.
#pragma once

#include "subversion/svn/ProviderContext.h"

namespace kestrel::svnscc {

enum class Named { Files, Folders };

/// Calls `callback` for each name that does not fit `command` (to exclude it) and for each file that fits and is not among
/// the names (to include it).  With Named::Folders the names are folders, or the project folder if there are none, and all
/// fitting files below them are included.  `statuses` (may be null) receives one status per name.  Stops if the callback
/// returns 0.
scc::Long Populate(ProviderContext& context, scc::SCCCommand command, Names names, Named named,
                   scc::TPopListFunc callback, void* callerData, scc::Long* statuses);

/// Whether the command can work on a file with these status bits.
bool Fits(scc::SCCCommand command, scc::Long bits);

}  // namespace kestrel::svnscc
