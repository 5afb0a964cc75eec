// Calling into packages: the caller around every such call, and the lists of what packages registered.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "host/Services.h"

namespace kestrel::workbench {

/// Where a line for the user goes: the message pane, or the error stream as long as there is none.
using TLogLine = std::function<void(const std::string&)>;

/// Runs code of packages so that none of its failures reaches the workbench.
class TPackageCaller {
 public:
  explicit TPackageCaller(TLogLine log) : log_(std::move(log)) {}
  /// Calls `code`.  EAbort ends it silently, every other exception becomes one line that begins with `what`.
  /// False when it ended by an exception.
  bool Run(const std::string& what, const std::function<void()>& code) const;
  void Log(const std::string& line) const { log_(line); }
  /// Whether code of a package is on the call stack.  It may have a window up and run a message loop.
  bool IsRunning() const { return depth_ > 0; }

 private:
  TLogLine log_;
  mutable int depth_ = 0;
};

/// Objects that packages registered, by the index they take them back with.  Indexes are never reused.
template <class T>
class TRegistrations {
 public:
  int Add(std::shared_ptr<T> object) {
    if (!object) return -1;
    objects_.emplace(next_, std::move(object));
    return next_++;
  }
  /// What stood under `index`; the caller's share is the list's last.  nullptr for an unknown index.
  std::shared_ptr<T> Remove(int index) {
    auto node = objects_.extract(index);
    return node ? std::move(node.mapped()) : nullptr;
  }
  /// Calls `visit` for each object still registered when its turn comes; each stays alive during its own call.
  template <class Visit>
  void ForEach(Visit visit) const {
    ForEachShared([&](const std::shared_ptr<T>& object) { visit(*object); });
  }
  template <class Visit>
  void ForEachShared(Visit visit) const {
    std::vector<int> indexes;
    for (const auto& [index, object] : objects_) indexes.push_back(index);
    for (const int index : indexes)
      if (const auto found = objects_.find(index); found != objects_.end()) {
        const std::shared_ptr<T> keep = found->second;
        visit(keep);
      }
  }
  std::size_t Count() const { return objects_.size(); }
  void Clear() {
    const auto doomed = std::move(objects_);
    objects_.clear();
  }

 private:
  std::map<int, std::shared_ptr<T>> objects_;
  int next_ = 0;
};

/// The IDE notifiers and what is sent to them.
class TNotifications {
 public:
  explicit TNotifications(const TPackageCaller& caller) : caller_(caller) {}
  TRegistrations<IOTAIDENotifier>& Notifiers() { return notifiers_; }

  void FileOpened(const std::string& fileName);
  /// False when a notifier wants the file to stay open.
  bool FileClosing(const std::string& fileName);
  void ActiveProjectChanged(const std::string& fileName);

 private:
  bool Send(TOTAFileNotification code, const std::string& fileName);
  const TPackageCaller& caller_;
  TRegistrations<IOTAIDENotifier> notifiers_;
};

}  // namespace kestrel::workbench
