// One registry root as a stack of INI files; a value is read from the topmost file that has it.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "system/RegistryRoot.h"
#include "system/posix/RegistryStore.h"

namespace kestrel {

/// Reads all files and writes the topmost.  Nothing is cached, so that changes by other programs are visible.
class TRegistryLayers final : public IRegistryRoot {
 public:
  /// `files` from the topmost down; they need not exist.  Changes require at least one.
  explicit TRegistryLayers(std::vector<std::string> files) : files_(std::move(files)) {}

  bool HasKey(const std::string& key) const override;
  std::optional<std::string> Value(const std::string& key, const std::string& name) const override;
  /// The distinct names, those of the topmost file first.
  std::vector<std::string> ValueNames(const std::string& key) const override;

  void SetValue(const std::string& key, const std::string& name, const std::string& value) const override;
  /// Returns false if the topmost file does not contain it; a lower one may still do so.
  bool DeleteValue(const std::string& key, const std::string& name) const override;
  bool DeleteKey(const std::string& key) const override;

 private:
  std::vector<std::string> files_;
};

}  // namespace kestrel
