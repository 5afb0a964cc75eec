// Locks of the working copy itself, which libsvn takes for the time of a command: what dead processes left is cleaned
// up, what live ones hold is waited for.
#pragma once

#include <functional>
#include <string>

#include "scc/sccdefs.h"

namespace kestrel::svnscc {

class ProviderContext;

/// The top folder of the working copy that `folder` belongs to; empty when it belongs to none.
std::string WorkingCopyRoot(const std::string& folder);

/// Finishes what dead processes left in the working copy that holds `folder`; what live ones do is left alone.
/// Throws Failure when that fails.
void FinishInterrupted(ProviderContext& context, const std::string& folder);

/// Runs `body`, again when another process was at work in the working copy that holds `folder`.  Throws Failure, which
/// names the other program, when that one is not done in time.
void RetryWhenFree(ProviderContext& context, const std::string& folder, const std::function<void()>& body);

/// Releases what a command of the open project that failed or was cancelled left locked in this process.
void ReleaseOwnLocks(ProviderContext& context);

/// Runs a command of the open project so, and cleans up when it is cancelled.
scc::Long RunCommand(ProviderContext& context, const std::function<scc::Long()>& command);

}  // namespace kestrel::svnscc
