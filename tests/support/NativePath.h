// Tests write paths with slashes, and lines without carriage returns.
#pragma once

#include <algorithm>
#include <string>

#include "system/Paths.h"

namespace kestrel {

/// The path with the platform's delimiters.
inline std::string Native(std::string path) {
  std::ranges::replace(path, '/', PathDelim);
  return path;
}

/// The text of a file without the carriage returns that some platforms end their lines with.
inline std::string WithoutReturns(std::string text) {
  std::erase(text, '\r');
  return text;
}

}  // namespace kestrel
