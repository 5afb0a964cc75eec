// A fresh folder under the system's temporary directory, removed with everything in it when the object goes.
#pragma once

#include <filesystem>
#include <random>
#include <string>

#include "system/FileName.h"
#include "system/System.h"

namespace kestrel {

class TTemporaryFolder {
 public:
  TTemporaryFolder() {
    const auto base = std::filesystem::canonical(std::filesystem::temp_directory_path());
    std::random_device random;
    do path_ = FromFilePath(base / ("kestrel-" + std::to_string(random())));
    while (!std::filesystem::create_directory(ToFilePath(path_)));
  }
  TTemporaryFolder(const TTemporaryFolder&) = delete;
  TTemporaryFolder& operator=(const TTemporaryFolder&) = delete;
  ~TTemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(ToFilePath(path_), ignored);
  }

  /// The absolute path, without a trailing delimiter.
  const std::string& Path() const { return path_; }
  std::string operator/(const std::string& name) const {
    return FromFilePath((ToFilePath(path_) / ToFilePath(name)).make_preferred());
  }
  /// Creates a folder and those above it; returns its path.
  std::string MakeFolder(const std::string& name) const {
    std::filesystem::create_directories(ToFilePath(*this / name));
    return *this / name;
  }
  /// Writes a file, with its folders; returns its path.
  std::string Write(const std::string& name, const std::string& contents) const {
    std::filesystem::create_directories(ToFilePath(*this / name).parent_path());
    WriteFileAtomically(*this / name, contents);
    return *this / name;
  }

 private:
  std::string path_;
};

}  // namespace kestrel
