// A fresh folder under the system's temporary directory, removed with everything in it when the object goes.
#pragma once

#include <stdlib.h>

#include <filesystem>
#include <stdexcept>
#include <string>

#include "host/System.h"

class TTemporaryFolder {
 public:
  TTemporaryFolder() {
    auto pattern =
        (std::filesystem::canonical(std::filesystem::temp_directory_path()) / "kestrel-XXXXXX").string();
    if (!mkdtemp(pattern.data())) throw std::runtime_error("no temporary folder: " + pattern);
    path_ = pattern;
  }
  TTemporaryFolder(const TTemporaryFolder&) = delete;
  TTemporaryFolder& operator=(const TTemporaryFolder&) = delete;
  ~TTemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  /// The absolute path, without a trailing delimiter.
  const std::string& Path() const { return path_; }
  std::string operator/(const std::string& name) const { return path_ + "/" + name; }
  /// Creates a folder and those above it; returns its path.
  std::string MakeFolder(const std::string& name) const {
    std::filesystem::create_directories(*this / name);
    return *this / name;
  }
  /// Writes a file, with its folders; returns its path.
  std::string Write(const std::string& name, const std::string& contents) const {
    std::filesystem::create_directories(std::filesystem::path(*this / name).parent_path());
    WriteFileAtomically(*this / name, contents);
    return *this / name;
  }

 private:
  std::string path_;
};
