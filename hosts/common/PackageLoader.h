// Run-time packages: loading, their three entry points, unloading.
#pragma once

#include <string>
#include <vector>

#include "hosts/common/Notifications.h"
#include "system/Library.h"

namespace kestrel {

class TPackageLoader {
 public:
  explicit TPackageLoader(const TPackageCaller& caller) : caller_(caller) {}
  TPackageLoader(const TPackageLoader&) = delete;
  TPackageLoader& operator=(const TPackageLoader&) = delete;
  ~TPackageLoader() { Unload(); }

  /// Loads the package and calls Initialize and IDERegister. If it cannot be loaded, logs why and returns false.
  bool Load(const std::string& path);
  /// A line per loaded package: the file's name, and its version if it has one.
  std::string Describe() const;
  /// Calls Finalize of each package in reverse order of loading. The code stays in memory until Unload.
  void Finalize();
  /// Releases the libraries; no object of theirs may exist any more.
  void Unload();

 private:
  struct TPackage {
    std::string Path;
    TModuleHandle Module = nullptr;
    bool Finalized = false;
  };
  const TPackageCaller& caller_;
  std::vector<TPackage> packages_;
};

}  // namespace kestrel
