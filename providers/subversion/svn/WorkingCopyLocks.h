// Working-copy locks, which libsvn holds during a command.  Those of dead processes are cleaned up, those of live ones
// waited for.
#pragma once

#include <functional>
#include <string>

#include "scc/sccdefs.h"

namespace kestrel::svnscc {

class ProviderContext;

/// The root of the working copy that contains `folder`; empty if there is none.
std::string WorkingCopyRoot(const std::string& folder);

/// Cleans up after dead processes in the working copy that contains `folder`, unless another process uses it.  Throws
/// Failure.
void FinishInterrupted(ProviderContext& context, const std::string& folder);

/// Runs `body` and retries it while the working copy that contains `folder` is locked.  Throws Failure, naming the other
/// program, after a timeout.
void RetryWhenFree(ProviderContext& context, const std::string& folder, const std::function<void()>& body);

/// Releases the working-copy locks that a failed or cancelled command of this process left.
void ReleaseOwnLocks(ProviderContext& context);

/// RetryWhenFree() for a command of the open project; cleans up after a cancelled one.
scc::Long RunCommand(ProviderContext& context, const std::function<scc::Long()>& command);

}  // namespace kestrel::svnscc
