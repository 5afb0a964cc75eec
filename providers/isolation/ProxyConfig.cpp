#include "isolation/ProxyConfig.h"

#include <filesystem>
#include <fstream>

namespace kestrel::isolation {

namespace {

std::filesystem::path ToPath(const std::string& text) { return std::u8string(text.begin(), text.end()); }

}  // namespace

ProxyConfig ReadProxyConfig(const std::string& file) {
  ProxyConfig config;
  const auto folder = file.substr(0, file.find_last_of("/\\") + 1);
  std::ifstream lines(ToPath(file));
  for (std::string line; std::getline(lines, line);) {
    if (line.ends_with('\r')) line.pop_back();
    if (line == std::string(kSearchPathKey) + "1") config.SearchPath = true;
    for (auto& [key, path] :
         {std::pair<std::string, std::string&>{kProviderKey, config.Provider}, {kHostKey, config.Host}})
      if (line.starts_with(key)) {
        path = line.substr(key.size());
        if (ToPath(path).is_relative()) path.insert(0, folder);
      }
  }
  return config;
}

}  // namespace kestrel::isolation
