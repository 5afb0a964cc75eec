// Conversions between UTF-8 strings and std::filesystem::path.
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
