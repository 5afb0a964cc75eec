#include <memory>

#include "system/Paths.h"
#include "system/System.h"
#include "system/windows/Api.h"
#include "system/windows/Wide.h"

namespace kestrel {

namespace {

struct TCloseSearch {
  using pointer = HANDLE;
  void operator()(HANDLE search) const { FindClose(search); }
};

bool IsLink(const WIN32_FIND_DATAW& found) {
  return (found.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) &&
         (found.dwReserved0 == IO_REPARSE_TAG_SYMLINK || found.dwReserved0 == IO_REPARSE_TAG_MOUNT_POINT);
}

}  // namespace

void ForEachEntry(const std::string& directory, const std::function<void(const TDirectoryEntry&)>& visit) {
  WIN32_FIND_DATAW found;
  const auto pattern = ToWideFileName(IncludeTrailingPathDelimiter(directory) + "*.*");
  const auto handle = FindFirstFileExW(pattern.c_str(), FindExInfoBasic, &found, FindExSearchNameMatch,
                                       nullptr, FIND_FIRST_EX_LARGE_FETCH);
  if (handle == INVALID_HANDLE_VALUE) return;
  const std::unique_ptr<HANDLE, TCloseSearch> search(handle);
  do {
    const auto name = FromWide(found.cFileName);
    if (name != "." && name != "..")
      visit({name, (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0, IsLink(found)});
  } while (FindNextFileW(handle, &found));
}

}  // namespace kestrel
