#include "system/Paths.h"

#include "system/Text.h"

namespace kestrel {

const char PathDelim = '/';

bool IsPathDelim(char c) { return c == PathDelim; }

std::size_t RootLength(std::string_view path) { return !path.empty() && IsPathDelim(path.front()) ? 1 : 0; }

bool IsAbsolutePath(std::string_view path) { return RootLength(path) > 0; }

std::string NormalizeRoot(std::string_view root) { return std::string(root); }

std::string ResolvePath(std::string_view directory, std::string_view path) {
  if (directory.empty() || IsAbsolutePath(path)) return std::string(path);
  return IncludeTrailingPathDelimiter(directory).append(path);
}

std::string FoldFileName(std::string_view path) { return FoldCase(path); }

bool SameFileName(std::string_view a, std::string_view b) { return a == b; }

}  // namespace kestrel
