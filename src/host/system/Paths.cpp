#include "system/Paths.h"

#include <algorithm>
#include <span>
#include <vector>

namespace kestrel {

namespace {

/// The offset of the file name: after the last delimiter, or 0.
std::size_t NameStart(std::string_view path) {
  const auto last = std::find_if(path.rbegin(), path.rend(), IsPathDelim);
  return static_cast<std::size_t>(path.rend() - last);
}

/// The offset of the extension, or the length of the path.
std::size_t ExtStart(std::string_view path) {
  const auto dot = path.rfind('.');
  return dot == path.npos || dot < NameStart(path) ? path.size() : dot;
}

std::string_view WithoutTrailingDelimiters(std::string_view path) {
  const auto root = RootLength(path);
  while (path.size() > root && IsPathDelim(path.back())) path.remove_suffix(1);
  return path;
}

/// The normalized components of a path.
struct TParts {
  std::string Root;
  std::vector<std::string_view> Names;
};

void Append(TParts& parts, std::string_view name) {
  if (name.empty() || name == ".") return;
  const bool up = name == "..";
  if (up && !parts.Names.empty() && parts.Names.back() != "..")
    parts.Names.pop_back();
  else if (!up || parts.Root.empty() || !IsPathDelim(parts.Root.back()))  // a root is its own parent
    parts.Names.push_back(name);
}

TParts SplitPath(std::string_view path) {
  const auto root = RootLength(path);
  TParts parts{NormalizeRoot(path.substr(0, root)), {}};
  for (auto at = path.begin() + static_cast<std::ptrdiff_t>(root);; ++at) {
    const auto end = std::find_if(at, path.end(), IsPathDelim);
    Append(parts, {at, end});
    if (end == path.end()) return parts;
    at = end;
  }
}

std::string Join(std::string path, std::span<const std::string_view> names) {
  for (std::size_t i = 0; i < names.size(); ++i) {
    if (i > 0) path += PathDelim;
    path += names[i];
  }
  return path.empty() ? "." : path;
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

std::string RelativePathBelow(std::string_view base, std::string_view path) {
  const auto directory = IncludeTrailingPathDelimiter(WithoutTrailingDelimiters(base));
  const bool below = !base.empty() && path.size() > directory.size() &&
                     FoldFileName(path.substr(0, directory.size())) == FoldFileName(directory);
  return std::string(below ? path.substr(directory.size()) : path);
}

std::string NormalizePath(std::string_view path) {
  const auto parts = SplitPath(path);
  return path.empty() ? std::string() : Join(parts.Root, parts.Names);
}

std::string RelativePath(std::string_view base, std::string_view path) {
  const auto from = SplitPath(base);
  const auto to = SplitPath(path);
  const auto [ours, theirs] = std::ranges::mismatch(from.Names, to.Names, SameFileName);
  // The name of the directory that a leading ".." left is unknown.
  const bool unknown = ours != from.Names.end() && *ours == "..";
  if (base.empty() || unknown || !SameFileName(from.Root, to.Root)) return std::string(path);
  std::vector<std::string_view> way(static_cast<std::size_t>(from.Names.end() - ours), "..");
  way.insert(way.end(), theirs, to.Names.end());
  return Join({}, way);
}

}  // namespace kestrel
