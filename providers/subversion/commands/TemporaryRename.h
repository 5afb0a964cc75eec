// Keeping files that libsvn must not see or touch.
#pragma once

#include <svn_client.h>

#include <string>

#include "subversion/svn/LocalStatus.h"
#include "subversion/svn/SvnHandles.h"

namespace kestrel::svnscc {

void RenameOnDisk(const std::string& from, const std::string& to);

/// A file or folder out of libsvn's sight while this lives.  What takes its name meanwhile is lost.
class TemporaryRename {
 public:
  explicit TemporaryRename(const std::string& path);
  TemporaryRename(const TemporaryRename&) = delete;
  TemporaryRename& operator=(const TemporaryRename&) = delete;
  ~TemporaryRename();

 private:
  std::string path_;
  std::string aside_;
};

/// A free name in the folder of `path` for a copy of it.
std::string FreeNameBeside(const std::string& path);
/// Copies a file to a free name beside it, tells the user, and returns the name.  Throws Failure.
std::string SaveCopy(ProviderContext& context, const std::string& path);

/// Makes room for a file of the repository where a file stands that never came from it.
class MovedObstruction {
 public:
  MovedObstruction(ProviderContext& context, std::string path);
  MovedObstruction(MovedObstruction&& other) noexcept;
  MovedObstruction& operator=(MovedObstruction&&) = delete;
  /// Puts the file back when nothing took its place.  Otherwise it stays beside, under a name that the user is told,
  /// unless it says the same as what was fetched.
  ~MovedObstruction();

 private:
  ProviderContext* context_;
  std::string path_;
  std::string copy_;
};

/// No notice reaches the user while this lives: what libsvn does is a step that the user did not ask for.
class MutedNotifications {
 public:
  explicit MutedNotifications(const ProviderContext& context);
  MutedNotifications(const MutedNotifications&) = delete;
  MutedNotifications& operator=(const MutedNotifications&) = delete;
  ~MutedNotifications();

 private:
  svn_client_ctx_t* context_;
  svn_wc_notify_func2_t notify_;
};

}  // namespace kestrel::svnscc
