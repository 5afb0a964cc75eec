#include "host/Paths.h"

#include "host/Text.h"

namespace {

bool IsLetter(char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }

bool HasDrive(std::string_view path) { return path.size() >= 2 && IsLetter(path[0]) && path[1] == ':'; }

bool IsUnc(std::string_view path) { return path.size() >= 2 && IsPathDelim(path[0]) && IsPathDelim(path[1]); }

/// "\\server\share\": the two names belong to the root.
std::size_t UncRootLength(std::string_view path) {
  const auto server = path.find_first_of("\\/", 2);
  if (server == path.npos) return path.size();
  const auto share = path.find_first_of("\\/", server + 1);
  return share == path.npos ? path.size() : share + 1;
}

}  // namespace

const char PathDelim = '\\';

bool IsPathDelim(char c) { return c == '\\' || c == '/'; }

std::size_t RootLength(std::string_view path) {
  if (IsUnc(path)) return UncRootLength(path);
  const std::size_t drive = HasDrive(path) ? 2 : 0;
  return path.size() > drive && IsPathDelim(path[drive]) ? drive + 1 : drive;
}

// Neither "C:name" nor "\name" says on its own where the file is.
bool IsAbsolutePath(std::string_view path) {
  return IsUnc(path) || (HasDrive(path) && path.size() > 2 && IsPathDelim(path[2]));
}

bool SameFileName(std::string_view a, std::string_view b) { return SameText(a, b); }
