// Moving files aside that libsvn must not see or touch.
#pragma once

#include <svn_client.h>

#include <string>

#include "subversion/svn/LocalStatus.h"
#include "subversion/svn/SvnHandles.h"

namespace kestrel::svnscc {

void RenameOnDisk(const std::string& from, const std::string& to);

/// Scoped: renames a file or folder, and back; deletes what has taken its name meanwhile.
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
/// Copies a file to a free name beside it, reports and returns the name.  Throws Failure.
std::string SaveCopy(ProviderContext& context, const std::string& path);

/// Scoped: moves a local file aside that obstructs a file of the repository.
class MovedObstruction {
 public:
  MovedObstruction(ProviderContext& context, std::string path);
  MovedObstruction(MovedObstruction&& other) noexcept;
  MovedObstruction& operator=(MovedObstruction&&) = delete;
  /// Moves the file back if nothing has taken its place.  Otherwise it keeps its new name, which is reported, or is deleted
  /// if its contents are those of the fetched file.
  ~MovedObstruction();

 private:
  ProviderContext* context_;
  std::string path_;
  std::string copy_;
};

/// Scoped: no notification of libsvn reaches the user.
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
