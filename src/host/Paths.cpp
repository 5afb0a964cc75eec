#include "host/Paths.h"

#include <algorithm>

namespace {

/// Where the file name begins: behind the last delimiter, else at 0.
std::size_t NameStart(std::string_view path) {
  const auto last = std::find_if(path.rbegin(), path.rend(), IsPathDelim);
  return static_cast<std::size_t>(path.rend() - last);
}

/// Where the extension begins, or the path's end.
std::size_t ExtStart(std::string_view path) {
  const auto dot = path.rfind('.');
  return dot == path.npos || dot < NameStart(path) ? path.size() : dot;
}

std::string_view WithoutTrailingDelimiters(std::string_view path) {
  const auto root = RootLength(path);
  while (path.size() > root && IsPathDelim(path.back())) path.remove_suffix(1);
  return path;
}

}  // namespace

std::string ExtractFileName(std::string_view path) { return std::string(path.substr(NameStart(path))); }

std::string ExtractFileDir(std::string_view path) {
  return std::string(WithoutTrailingDelimiters(path.substr(0, NameStart(path))));
}

std::string ExtractFileExt(std::string_view path) { return std::string(path.substr(ExtStart(path))); }

std::string ChangeFileExt(std::string_view path, std::string_view extension) {
  return std::string(path.substr(0, ExtStart(path))).append(extension);
}

std::string IncludeTrailingPathDelimiter(std::string_view path) {
  std::string directory(path);
  if (path.empty() || !IsPathDelim(path.back())) directory += PathDelim;
  return directory;
}

std::string ExcludeTrailingPathDelimiter(std::string_view path) {
  return std::string(WithoutTrailingDelimiters(path));
}

std::string RelativePath(std::string_view base, std::string_view path) {
  const auto directory = IncludeTrailingPathDelimiter(WithoutTrailingDelimiters(base));
  const bool below = !base.empty() && path.size() > directory.size() &&
                     SameFileName(path.substr(0, directory.size()), directory);
  return std::string(below ? path.substr(directory.size()) : path);
}
