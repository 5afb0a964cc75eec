// File names where the standard library's file system is at work: its paths begin and end as this system's text, UTF-8,
// on every platform.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace kestrel {

inline std::filesystem::path ToFilePath(std::string_view name) {
  return std::u8string(name.begin(), name.end());
}

inline std::string FromFilePath(const std::filesystem::path& path) {
  const auto text = path.u8string();
  return {text.begin(), text.end()};
}

}  // namespace kestrel
