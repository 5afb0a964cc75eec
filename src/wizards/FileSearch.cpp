#include "wizards/FileSearch.h"

#include "system/Paths.h"
#include "system/System.h"

namespace kestrel::addin {

namespace {

using TStringList = std::vector<std::string>;

std::string PathOf(const std::string& directory, const TDirectoryEntry& entry) {
  std::string path;
  path.reserve(directory.size() + entry.Name.size() + 1);  // callers may append a delimiter
  return path.append(directory).append(entry.Name);
}

bool IsEntered(const TDirectoryEntry& entry) { return entry.IsDirectory && !entry.IsLink; }

}  // namespace

void SearchDirectory(TStringList& target, const std::string& directory) {
  const auto start = IncludeTrailingPathDelimiter(directory);
  ForEachEntry(start, [&](const TDirectoryEntry& entry) { target.push_back(PathOf(start, entry)); });
}

void FindSubDirectories(TStringList& target, const std::string& directory) {
  const auto start = IncludeTrailingPathDelimiter(directory);
  ForEachEntry(start, [&](const TDirectoryEntry& entry) {
    if (entry.IsDirectory) target.push_back(PathOf(start, entry));
  });
}

void SearchRecursiveFiles(TStringList& target, const std::string& directory) {
  TStringList queue{IncludeTrailingPathDelimiter(directory)};
  for (std::size_t next = 0; next < queue.size(); ++next) {
    const auto current = std::move(queue[next]);
    ForEachEntry(current, [&](const TDirectoryEntry& entry) {
      target.push_back(PathOf(current, entry));
      if (IsEntered(entry)) queue.push_back(target.back() + PathDelim);
    });
  }
}

void SearchRecursiveDirectories(TStringList& target, const std::string& directory) {
  auto next = target.size();  // `target` from here on is the queue
  target.push_back(IncludeTrailingPathDelimiter(directory));
  for (; next < target.size(); ++next) {
    const auto current = target[next];
    ForEachEntry(current, [&](const TDirectoryEntry& entry) {
      if (IsEntered(entry)) target.push_back(PathOf(current, entry) + PathDelim);
    });
  }
}

}  // namespace kestrel::addin
