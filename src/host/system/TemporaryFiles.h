// The temporary files of WriteFileAtomically(), named ".corvane-PROCESS-NUMBER.tmp".
#pragma once

#include <string>

namespace kestrel {

/// A name, without a directory, that this process has not used yet.  It is short, so that a target with a name of the
/// greatest length can be written as well.
std::string NewTemporaryName();
/// Deletes temporary files of processes that no longer run.  Files younger than an hour stay, because on a shared disk
/// their process may run on another machine.  An empty `directory` is the current one.  Ignores errors.
void RemoveStaleTemporaryFiles(const std::string& directory);

/// Whether a process with this id runs on this machine; true if that cannot be determined.
bool IsProcessRunning(unsigned long process);
/// The id of this process.
unsigned long CurrentProcess();

}  // namespace kestrel
