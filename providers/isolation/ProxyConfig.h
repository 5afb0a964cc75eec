// The configuration of one copy of the isolating library: the provider that it stands for.  It is stored in a file beside
// the library, one "Key=Value" line per setting, so that each copy can stand for another provider.
#pragma once

#include <string>

namespace kestrel::isolation {

/// Extension of the configuration file; the rest of its name is the library's.
constexpr const char* kConfigExtension = ".provider";
constexpr const char* kProviderKey = "Provider=";
constexpr const char* kHostKey = "Host=";
constexpr const char* kSearchPathKey = "SearchPath=";
constexpr const char* kSearchPathOption = "--search-path";  ///< the same for the program

struct ProxyConfig {
  std::string Provider;     ///< absolute path of the real provider library
  std::string Host;         ///< absolute path of the program that loads it
  bool SearchPath = false;  ///< Windows: search PATH, too, for the libraries that the provider needs
};

/// Reads a configuration file; settings that it lacks are empty.  Relative paths are resolved against its folder.
ProxyConfig ReadProxyConfig(const std::string& file);
/// Path of the configuration file of the library that this code is linked into.
std::string OwnConfigFile();

}  // namespace kestrel::isolation
