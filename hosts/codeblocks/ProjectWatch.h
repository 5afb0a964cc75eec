// What packages know of the open files and projects.
#pragma once

#include <set>
#include <string>

#include "hosts/common/Notifications.h"

namespace kestrel::codeblocks {

/// Notifies packages of each file once.  The IDE's events come doubled, early or in another order than packages expect:
/// a project is activated before it is opened, and a reload opens a file again.
class TProjectWatch {
 public:
  explicit TProjectWatch(TNotifications& notifications) : notifications_(notifications) {}
  void FileOpened(const std::string& fileName);
  void FileClosing(const std::string& fileName);
  void ProjectClosing(const std::string& fileName);
  /// Notifies packages of opened projects and of a change of the active one.  Does nothing while the IDE opens or closes
  /// projects: call it again afterwards.
  void Update();

 private:
  TNotifications& notifications_;
  std::set<std::string> files_;
  std::set<std::string> projects_;
  std::string active_;
};

}  // namespace kestrel::codeblocks
