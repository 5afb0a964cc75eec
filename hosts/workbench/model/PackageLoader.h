// Run-time packages: loading, their three entry points, unloading.
#pragma once

#include <string>
#include <vector>

#include "system/Library.h"
#include "workbench/model/Notifications.h"

namespace kestrel::workbench {

class TPackageLoader {
 public:
  explicit TPackageLoader(const TPackageCaller& caller) : caller_(caller) {}
  TPackageLoader(const TPackageLoader&) = delete;
  TPackageLoader& operator=(const TPackageLoader&) = delete;
  ~TPackageLoader() { Unload(); }

  /// Loads the package and calls Initialize and IDERegister.  False, and a line for the user, when it cannot be loaded.
  bool Load(const std::string& path);
  /// Calls Finalize of each package, the last loaded first.  Their code stays in memory until Unload.
  void Finalize();
  /// Releases the libraries.  No object of theirs may be left.
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

}  // namespace kestrel::workbench
