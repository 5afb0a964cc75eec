// Paths inside a repository: names separated by "/", empty for the root.
#pragma once

#include <string>

namespace kestrel {

/// The folder that contains `path`; empty at the top.
inline std::string PathAbove(const std::string& path) {
  const auto slash = path.rfind('/');
  return slash == std::string::npos ? "" : path.substr(0, slash);
}

inline std::string PathBelow(const std::string& folder, const std::string& name) {
  return folder.empty() ? name : folder + "/" + name;
}

}  // namespace kestrel
