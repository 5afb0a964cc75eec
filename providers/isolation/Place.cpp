#include "Place.h"

#include <filesystem>
#include <fstream>

namespace isolation {

Place ReadPlace(const std::string& file) {
  Place place;
  std::ifstream lines(std::filesystem::path(std::u8string(file.begin(), file.end())));
  for (std::string line; std::getline(lines, line);) {
    if (line.ends_with('\r')) line.pop_back();
    for (auto& [key, value] :
         {std::pair<std::string, std::string&>{kProviderKey, place.Provider}, {kHostKey, place.Host}})
      if (line.starts_with(key)) value = line.substr(key.size());
  }
  return place;
}

}  // namespace isolation
