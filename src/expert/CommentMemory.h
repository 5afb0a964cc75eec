// Comments that must not be lost: what was typed for a command that did not succeed, and the last ones that were used.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "provider/sccdefs.h"

/// Lives as long as the add-in; not stored.
class TCommentMemory {
 public:
  static constexpr std::size_t kRecent = 10;

  /// What was typed for a command of that kind and has not been used successfully since; empty when there is none.
  std::string Pending(scc::SCCCommand command) const;
  /// The last comments typed, the newest first, none twice, none blank.
  const std::vector<std::string>& Recent() const { return recent_; }

  /// The user typed this, whatever became of it.
  void Typed(scc::SCCCommand command, const std::string& text);
  /// The command succeeded: its comment has arrived.
  void Used(scc::SCCCommand command) { pending_.erase(command); }

 private:
  std::map<scc::SCCCommand, std::string> pending_;
  std::vector<std::string> recent_;
};
