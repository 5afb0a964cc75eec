// Paths of registry keys, on every platform.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace kestrel {

/// Removes leading, trailing and repeated delimiters.  A root becomes empty.
inline std::string CanonicalKey(std::string_view key) {
  std::string canonical;
  for (const char c : key)
    if (c != '\\' || (!canonical.empty() && canonical.back() != '\\')) canonical += c;
  if (!canonical.empty() && canonical.back() == '\\') canonical.pop_back();
  return canonical;
}

/// Throws std::runtime_error for a root, which holds the keys of all programs and must not be deleted.
inline void RequireBelowRoot(std::string_view key) {
  if (CanonicalKey(key).empty()) throw std::runtime_error("A root of the registry cannot be deleted.");
}

}  // namespace kestrel
