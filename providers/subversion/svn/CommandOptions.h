// What a user chose beyond a command's own arguments, and the blocks in which clients carry it around.
#pragma once

#include <svn_types.h>

#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "scc/sccdefs.h"

namespace kestrel::svnscc {

/// A client keeps one block for all commands, or one for each: every block has room for all.
struct CommandOptions {
  svn_revnum_t GetRevision = SVN_INVALID_REVNUM;  // get: this instead of the newest
  bool StealLocks = false;                        // check-out: also what others have checked out
  bool KeepUnchangedOut = false;                  // check-in: files without changes stay checked out
  bool WithoutNeedsLock = false;                  // add: files are writable without being checked out
};

/// Whether there is anything to choose for the command.
bool HasOptions(scc::SCCCommand command);

/// The blocks that one context handed out; they live as long as this does.  What was chosen in them does not: clients keep
/// a block for good, also when the list that it was chosen for is cancelled.
class OptionBlocks {
 public:
  /// One call of the client.  Clients carry a command out with one call per file: a choice that a call took counts for
  /// the calls of the same command that follow it at once, and is forgotten by the first other call.
  class Call {
   public:
    explicit Call(OptionBlocks& blocks) : blocks_(blocks) {
      blocks_.running_ = std::exchange(blocks_.taken_, std::nullopt);
    }
    Call(const Call&) = delete;
    Call& operator=(const Call&) = delete;
    ~Call() {
      if (blocks_.running_ != blocks_.taken_) blocks_.EndRun();
    }

   private:
    OptionBlocks& blocks_;
  };

  CommandOptions* Make();
  /// Forgets what was chosen: a new list for a command begins, or the project goes.
  void Forget();
  /// Forgets what was chosen for the command that ran up to this call.
  void EndRun();
  /// The block that a client's argument means: the block itself, or the address of the variable that holds it.  Null
  /// for anything else.  A variable must be readable for the size of a pointer.
  CommandOptions* Find(void* argument) const;
  /// What is to be heeded by the command that runs now.
  CommandOptions Take(void* argument, scc::SCCCommand command);

 private:
  CommandOptions* Live(const void* block) const;
  std::vector<std::unique_ptr<CommandOptions>> blocks_;
  std::optional<scc::SCCCommand> running_;  // the command of the call before this one
  std::optional<scc::SCCCommand> taken_;    // the command of this call
};

}  // namespace kestrel::svnscc
