// Status changes that the client does not know yet.
#pragma once

#include <deque>
#include <optional>
#include <string>
#include <unordered_map>

#include "subversion/svn/Status.h"

namespace kestrel::svnscc {

/// Covers files that the client asked about.  A file is queued once, with its latest status.
class EventQueue {
 public:
  struct Event {
    std::string Path;
    scc::Long Bits;
  };

  /// While disabled nothing is queued; what was queued stays.
  void Enable(bool enabled) { enabled_ = enabled; }
  /// The client was told the status by other means.
  void Told(const std::string& path, scc::Long bits);
  bool Covers(const std::string& path) const { return told_.contains(path); }
  void Found(const std::string& path, scc::Long bits);
  /// The statuses of all files, as a walk found them.
  void Found(const StatusTable& table);
  /// The oldest event.  The client knows it from now on.
  std::optional<Event> Take();
  std::size_t Count() const { return pending_.size(); }
  void Clear();

 private:
  bool enabled_ = true;
  std::unordered_map<std::string, scc::Long> told_;
  std::unordered_map<std::string, scc::Long> pending_;
  std::deque<std::string> order_;  // of pending_, and paths that are pending no more
};

}  // namespace kestrel::svnscc
