// A root of the registry as the files that lie over each other: what an upper one does not hold shines through.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "system/Registry.h"
#include "system/posix/RegistryStore.h"

namespace kestrel {

/// Reads all files, writes the uppermost.  Nothing is kept between calls: what another program writes is seen by the
/// next one.
class TRegistryLayers {
 public:
  /// `files` from the uppermost down, at least one; they need not exist.
  explicit TRegistryLayers(std::vector<std::string> files) : files_(std::move(files)) {}
  /// The files of a root, as the environment places them.
  static TRegistryLayers Of(TRegRoot root);

  bool HasKey(const std::string& key) const;
  std::optional<std::string> Value(const std::string& key, const std::string& name) const;
  /// Names of the upper files come first; each name once.
  std::vector<std::string> ValueNames(const std::string& key) const;

  // These throw std::runtime_error with a sentence that names the file when it cannot be written.
  void SetValue(const std::string& key, const std::string& name, const std::string& value) const;
  /// False when the uppermost file did not hold it; a lower one may still do.
  bool DeleteValue(const std::string& key, const std::string& name) const;
  bool DeleteKey(const std::string& key) const;

 private:
  std::vector<std::string> files_;
};

}  // namespace kestrel
