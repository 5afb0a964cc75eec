// Which files fit a command: fills a client's file list.
#pragma once

#include "subversion/svn/ProviderContext.h"

namespace kestrel::svnscc {

enum class Named { Files, Folders };

/// Calls `callback` for files that fit `command` and are not among the names, and for names that do not fit.  With
/// Named::Folders the names are folders (none: the project folder), and everything below them that fits is reported.
/// `statuses` (may be nullptr) receives one word per name.  Ends early, successfully, when the callback says so.
scc::Long Populate(ProviderContext& context, scc::SCCCommand command, Names names, Named named,
                   scc::TPopListFunc callback, void* callerData, scc::Long* statuses);

/// Whether a file with these bits can be offered for the command.
bool Fits(scc::SCCCommand command, scc::Long bits);

}  // namespace kestrel::svnscc
