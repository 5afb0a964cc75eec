// The provider's own windows, and the provider's candidates for the file lists of commands.
//
// All throw EAbort when the current project has no provider project.
#pragma once

#include <string>

#include "expert/CommandContext.h"

namespace kestrel::addin {

/// The provider project of the host's current project, made current after waiting notifications have run.
TSCCProviderProject& SelectHostProject(TCommandContext& context);

void ShowDiff(TCommandContext& context, const std::string& fileName);
void ShowHistory(TCommandContext& context, const std::string& fileName);
void ShowProperties(TCommandContext& context, const std::string& fileName);
void RunProviderApplication(TCommandContext& context);
/// Lets the provider widen or narrow the file list of a command.
void ProviderAddRemove(TCommandContext& context, TStringList& list, scc::SCCCommand command);
/// Shows the file's status in the message window.
void ShowStatus(const TCommandContext& context, const std::string& fileName);

}  // namespace kestrel::addin
