#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

#include <memory>

#include "system/System.h"

namespace kestrel {

namespace {

struct TCloseDirectory {
  void operator()(DIR* directory) const { closedir(directory); }
};

/// Follows links.
bool IsDirectory(DIR* directory, const char* name) {
  struct stat info {};
  return fstatat(dirfd(directory), name, &info, 0) == 0 && S_ISDIR(info.st_mode);
}

bool IsLink(DIR* directory, const char* name) {
  struct stat info {};
  return fstatat(dirfd(directory), name, &info, AT_SYMLINK_NOFOLLOW) == 0 && S_ISLNK(info.st_mode);
}

/// Most file systems report the kind with the name; stat is needed for links and for other file systems only.
TDirectoryEntry EntryOf(DIR* directory, const dirent& entry) {
  const char* name = entry.d_name;
  switch (entry.d_type) {
    case DT_DIR:
      return {name, true, false};
    case DT_LNK:
      return {name, IsDirectory(directory, name), true};
    case DT_UNKNOWN:
      return {name, IsDirectory(directory, name), IsLink(directory, name)};
    default:
      return {name, false, false};
  }
}

}  // namespace

void ForEachEntry(const std::string& directory, const std::function<void(const TDirectoryEntry&)>& visit) {
  const std::unique_ptr<DIR, TCloseDirectory> opened(opendir(directory.c_str()));
  if (!opened) return;
  while (const dirent* entry = readdir(opened.get())) {
    const std::string_view name = entry->d_name;
    if (name != "." && name != "..") visit(EntryOf(opened.get(), *entry));
  }
}

}  // namespace kestrel
