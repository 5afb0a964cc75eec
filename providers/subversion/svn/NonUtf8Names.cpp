#include "subversion/svn/NonUtf8Names.h"

#include <filesystem>

#include "system/Text.h"

namespace kestrel::svnscc {

bool IsUtf8(std::string_view text) { return Readable(text) == text; }

std::string Readable(std::string_view text) {
  return ReplaceInvalidUtf8(text, [](std::string_view bytes) { return std::string(bytes.size(), '?'); });
}

std::vector<std::string> NamesNotUtf8(const std::string& folder) {
  namespace fs = std::filesystem;
  std::vector<std::string> names;
  std::error_code error;
  constexpr auto kOptions = fs::directory_options::skip_permission_denied;
  for (auto entry = fs::recursive_directory_iterator(folder, kOptions, error);
       !error && entry != fs::recursive_directory_iterator(); entry.increment(error)) {
    const std::string name = entry->path().filename().string();
    const bool bad = !IsUtf8(name);
    if (bad) names.push_back(entry->path().string());
    if (bad || name == ".svn") entry.disable_recursion_pending();
  }
  return names;
}

}  // namespace kestrel::svnscc
