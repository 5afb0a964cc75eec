// The files that WriteFileAtomically writes before they take their target's name: ".corvane-PROCESS-NUMBER.tmp".
#pragma once

#include <string>

namespace kestrel {

/// A name that this process has not used yet, without a directory.  Short, so that a target whose own name is as long as
/// names may be can be written too.
std::string NewTemporaryName();
/// Deletes such files of processes that are gone, as a kill leaves them.  Those younger than an hour stay: on a shared disk
/// their process may run on another machine.  An empty directory is the current one.  Reports no errors.
void RemoveStaleTemporaryFiles(const std::string& directory);

/// Whether a process of this number runs on this machine; true when the system does not tell.  Implemented once per
/// platform.
bool IsProcessRunning(unsigned long process);
/// The number of this one.
unsigned long CurrentProcess();

}  // namespace kestrel
