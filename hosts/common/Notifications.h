// Calls into packages, and the lists of objects that packages registered.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "host/Services.h"

namespace kestrel {

/// Shows a line to the user: in the message pane, or on stderr before there is one.
using TLogLine = std::function<void(const std::string&)>;

/// Calls package code and handles everything it throws.
class TPackageCaller {
 public:
  explicit TPackageCaller(TLogLine log) : log_(std::move(log)) {}
  /// Calls `code` and returns true, or false if it threw. EAbort is ignored; any other exception is logged as one line
  /// that begins with `what`.
  bool Run(const std::string& what, const std::function<void()>& code) const;
  void Log(const std::string& line) const { log_(line); }
  /// Whether package code is on the call stack. It may show windows and run a message loop.
  bool IsRunning() const { return depth_ > 0; }

 private:
  TLogLine log_;
  mutable int depth_ = 0;
};

/// Objects registered by packages, each under an index that is never reused.
template <class T>
class TRegistrations {
 public:
  int Add(std::shared_ptr<T> object) {
    if (!object) return -1;
    objects_.emplace(next_, std::move(object));
    return next_++;
  }
  /// Removes and returns the object at `index`; null for an unknown index. The result is the last reference held here.
  std::shared_ptr<T> Remove(int index) {
    auto node = objects_.extract(index);
    return node ? std::move(node.mapped()) : nullptr;
  }
  /// Calls `visit` for each object that is still registered when its turn comes, and keeps it alive during the call.
  template <class Visit>
  void ForEach(Visit visit) const {
    ForEachShared([&](const std::shared_ptr<T>& object) { visit(*object); });
  }
  template <class Visit>
  void ForEachShared(Visit visit) const {
    std::vector<int> indexes;
    indexes.reserve(objects_.size());
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

/// The registered IDE notifiers, and the notifications sent to them.
class TNotifications {
 public:
  explicit TNotifications(const TPackageCaller& caller) : caller_(caller) {}
  TRegistrations<IOTAIDENotifier>& Notifiers() { return notifiers_; }

  void FileOpened(const std::string& fileName);
  /// False if a notifier vetoed closing the file.
  bool FileClosing(const std::string& fileName);
  void ActiveProjectChanged(const std::string& fileName);

 private:
  bool Send(TOTAFileNotification code, const std::string& fileName);
  const TPackageCaller& caller_;
  TRegistrations<IOTAIDENotifier> notifiers_;
};

}  // namespace kestrel
