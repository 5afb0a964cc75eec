// Advanced options of commands, and the blocks in which clients pass them.
#pragma once

#include <svn_types.h>

#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "scc/sccdefs.h"

namespace kestrel::svnscc {

/// Options of all commands: a client may use one block for every command, or one for each.
struct CommandOptions {
  svn_revnum_t GetRevision = SVN_INVALID_REVNUM;  // get: this instead of the newest
  bool StealLocks = false;                        // check-out: also what others have checked out
  bool KeepUnchangedOut = false;                  // check-in: files without changes stay checked out
  bool WithoutNeedsLock = false;                  // add: files are writable without being checked out
};

/// Whether there is anything to choose for the command.
bool HasOptions(scc::SCCCommand command);

/// The blocks of one context; they live as long as this object.  The options in them do not: a client keeps using a block
/// after the file list that the user set it for was cancelled.
class OptionBlocks {
 public:
  /// Scope of one call of the client.  A client may run a command with one call per file: options stay valid for
  /// consecutive calls of the same command and are reset by the first other call.
  class Call {
   public:
    explicit Call(OptionBlocks& blocks) : blocks_(blocks) {
      blocks_.previous_ = std::exchange(blocks_.current_, std::nullopt);
    }
    Call(const Call&) = delete;
    Call& operator=(const Call&) = delete;
    ~Call() {
      if (blocks_.previous_ != blocks_.current_) blocks_.EndRun();
    }

   private:
    OptionBlocks& blocks_;
  };

  CommandOptions* Make();
  /// Resets all options: a client begins a new file list, or the project closes.
  void Reset();
  /// Resets the options of the command that ran up to this call.
  void EndRun();
  /// The block for a client's argument: a block, or the address of a variable that points to one.  Null for anything
  /// else.  The argument must be readable for the size of a pointer.
  CommandOptions* Find(void* argument) const;
  /// The options for the command that runs now.
  CommandOptions Use(void* argument, scc::SCCCommand command);

 private:
  CommandOptions* Live(const void* block) const;
  std::vector<std::unique_ptr<CommandOptions>> blocks_;
  std::optional<scc::SCCCommand> previous_;  // the command of the call before this one
  std::optional<scc::SCCCommand> current_;   // the command of this call
};

}  // namespace kestrel::svnscc
