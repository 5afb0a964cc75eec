#include "system/Paths.h"

#include <algorithm>

#include "system/Text.h"

namespace kestrel {

namespace {

constexpr std::string_view kDelimiters = "\\/";
constexpr std::string_view kVerbatim = "\\\\?\\";  // prefix of names that the system does not interpret
constexpr std::string_view kVerbatimUnc = "\\\\?\\UNC\\";

bool IsLetter(char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }

bool HasDrive(std::string_view path) { return path.size() >= 2 && IsLetter(path[0]) && path[1] == ':'; }

bool IsUnc(std::string_view path) { return path.size() >= 2 && IsPathDelim(path[0]) && IsPathDelim(path[1]); }

bool BeginsWith(std::string_view path, std::string_view prefix) {
  return SameFileName(path.substr(0, prefix.size()), prefix);
}

/// The end of the name at offset `at`, leading delimiters skipped.
std::size_t NameEnd(std::string_view path, std::size_t at) {
  return std::min(path.find_first_of(kDelimiters, path.find_first_not_of(kDelimiters, at)), path.size());
}

/// The length of "\\server\share\".
std::size_t UncRootLength(std::string_view path) {
  const auto server = BeginsWith(path, kVerbatimUnc) ? kVerbatimUnc.size() : 2;
  const auto share = NameEnd(path, NameEnd(path, server));
  return share == path.size() ? share : share + 1;
}

std::string WithOwnDelimiters(std::string_view path) {
  std::string own(path);
  std::ranges::replace(own, '/', PathDelim);
  return own;
}

/// Builds "\\server\share\" from the two names, separated by any delimiters.
std::string UncRoot(std::string_view names) {
  auto root = IncludeTrailingPathDelimiter("\\\\" + WithOwnDelimiters(names));
  const auto bothDelimit = [](char a, char b) { return a == PathDelim && b == PathDelim; };
  root.erase(std::unique(root.begin() + 1, root.end(), bothDelimit), root.end());
  return root;
}

}  // namespace

const char PathDelim = '\\';

bool IsPathDelim(char c) { return c == '\\' || c == '/'; }

std::size_t RootLength(std::string_view path) {
  if (IsUnc(path)) return UncRootLength(path);
  const std::size_t drive = HasDrive(path) ? 2 : 0;
  return path.size() > drive && IsPathDelim(path[drive]) ? drive + 1 : drive;
}

std::string NormalizeRoot(std::string_view root) {
  if (BeginsWith(root, kVerbatimUnc)) return UncRoot(root.substr(kVerbatimUnc.size()));
  if (BeginsWith(root, kVerbatim) && IsAbsolutePath(root.substr(kVerbatim.size())))
    root.remove_prefix(kVerbatim.size());
  return IsUnc(root) ? UncRoot(root) : WithOwnDelimiters(root);
}

// "C:name" and "\name" are not absolute: they depend on the current directory or drive.
bool IsAbsolutePath(std::string_view path) {
  return IsUnc(path) || (HasDrive(path) && path.size() > 2 && IsPathDelim(path[2]));
}

std::string ResolvePath(std::string_view directory, std::string_view path) {
  auto drive = directory.substr(0, RootLength(directory));
  if (!drive.empty() && IsPathDelim(drive.back())) drive.remove_suffix(1);
  if (IsAbsolutePath(path)) return std::string(path);
  // "\name" is on the directory's drive or share; "C:name" is in the directory if that is on drive C.
  if (RootLength(path) == 1) return std::string(drive).append(path);
  if (HasDrive(path) && SameFileName(path.substr(0, 2), drive)) path.remove_prefix(2);
  return directory.empty() || HasDrive(path) ? std::string(path)
                                             : IncludeTrailingPathDelimiter(directory).append(path);
}

std::string FoldFileName(std::string_view path) { return FoldCase(WithOwnDelimiters(path)); }

bool SameFileName(std::string_view a, std::string_view b) {
  return SameText(WithOwnDelimiters(a), WithOwnDelimiters(b));
}

}  // namespace kestrel
