// One run of a file command: gather, ask the provider, let the user pick, call the provider, reload, report.
#pragma once

#include <string>

#include "expert/CommandContext.h"
#include "expert/FileCommands.h"

namespace kestrel::addin {

/// Runs the command for that file, or for the eligible files of the current project when the name is blank.  Throws
/// EAbort when it cannot go on.
void RunFileCommand(TCommandContext& context, const TFileCommand& command, const std::string& fileName);

}  // namespace kestrel::addin
