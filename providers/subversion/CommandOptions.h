// What a user chose beyond a command's own arguments, and the blocks in which clients carry it around.
#pragma once

#include <svn_types.h>

#include <memory>
#include <vector>

#include "provider/sccdefs.h"

namespace svnscc {

/// A client keeps one block for all commands, or one for each: every block has room for all.
struct CommandOptions {
  svn_revnum_t GetRevision = SVN_INVALID_REVNUM;  // get: this instead of the newest
  bool StealLocks = false;                        // check-out: also what others have checked out
  bool KeepUnchangedOut = false;                  // check-in: files without changes stay checked out
  bool WithoutNeedsLock = false;                  // add: files are writable without being checked out
};

/// Whether there is anything to choose for the command.
bool HasOptions(scc::SCCCommand command);

/// The blocks that one context handed out; they live as long as this does.
class OptionBlocks {
 public:
  CommandOptions* Make();
  /// The block that a client's argument means: the block itself, or the address of the variable that holds it.  Null
  /// for anything else.  A variable must be readable for the size of a pointer.
  CommandOptions* Find(void* argument) const;
  /// What is to be heeded by the command that runs now.  A choice counts for every call of its command until the client
  /// drops the block: clients call once per file.
  CommandOptions Take(void* argument, scc::SCCCommand command) const;

 private:
  CommandOptions* Live(const void* block) const;
  std::vector<std::unique_ptr<CommandOptions>> blocks_;
};

}  // namespace svnscc
