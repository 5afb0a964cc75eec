// How paths of registry keys are spelled, on every platform.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace kestrel {

/// The one spelling of a key path: no delimiter at either end, none doubled.  A root is empty.
inline std::string CanonicalKey(std::string_view key) {
  std::string canonical;
  for (const char c : key)
    if (c != '\\' || (!canonical.empty() && canonical.back() != '\\')) canonical += c;
  if (!canonical.empty() && canonical.back() == '\\') canonical.pop_back();
  return canonical;
}

/// Throws std::runtime_error: deleting a root would delete what every program keeps there.
inline void RequireBelowRoot(std::string_view key) {
  if (CanonicalKey(key).empty()) throw std::runtime_error("A root of the registry cannot be deleted.");
}

}  // namespace kestrel
