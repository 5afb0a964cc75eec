// Status changes to report to the client.
#pragma once

#include <deque>
#include <optional>
#include <string>
#include <unordered_map>

#include "subversion/svn/Status.h"

namespace kestrel::svnscc {

/// Covers the files whose status the client has queried.  A file is queued once, with its latest status.
class EventQueue {
 public:
  struct Event {
    std::string Path;
    scc::Long Bits;
  };

  /// While disabled, nothing is queued; queued events stay.
  void Enable(bool enabled) { enabled_ = enabled; }
  /// Records that the client knows the status.
  void MarkReported(const std::string& path, scc::Long bits);
  bool Covers(const std::string& path) const { return reported_.contains(path); }
  /// Queues an event if the status differs from the reported one.
  void Update(const std::string& path, scc::Long bits);
  /// The same for all covered files.
  void Update(const StatusTable& table);
  /// Removes the oldest event, which counts as reported; nullopt if there is none.
  std::optional<Event> Pop();
  std::size_t Count() const { return pending_.size(); }
  void Clear();

 private:
  bool enabled_ = true;
  std::unordered_map<std::string, scc::Long> reported_;
  std::unordered_map<std::string, scc::Long> pending_;
  std::deque<std::string> order_;  // paths in pending_, and some that no longer are
};

}  // namespace kestrel::svnscc
