// Which provider a library stands for: a file beside it says so, one line each, so that copies of the library can stand
// for several.
#pragma once

#include <string>

namespace isolation {

/// The library's name, and in place of its extension that of the file.
constexpr const char* kPlaceExtension = ".provider";
constexpr const char* kProviderKey = "Provider=";
constexpr const char* kHostKey = "Host=";

struct Place {
  std::string Provider;  ///< the real library's path, absolute
  std::string Host;      ///< the path of the program that loads it, absolute
};

/// What the file says; empty what it does not say.  Paths that are not absolute begin in its folder.
Place ReadPlace(const std::string& file);
/// The file that belongs to this library.
std::string OwnPlaceFile();

}  // namespace isolation
