// One root of the registry, implemented in posix/ and windows/; TRegistry adds the open key.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "system/Registry.h"

namespace kestrel {

class IRegistryRoot {
 public:
  static std::unique_ptr<IRegistryRoot> Open(TRegRoot root);
  virtual ~IRegistryRoot() = default;

  virtual bool HasKey(const std::string& key) const = 0;
  virtual std::optional<std::string> Value(const std::string& key, const std::string& name) const = 0;
  virtual std::vector<std::string> ValueNames(const std::string& key) const = 0;

  // These throw std::runtime_error with a sentence for the user if the change cannot be stored.
  virtual void SetValue(const std::string& key, const std::string& name, const std::string& value) const = 0;
  /// Returns false if there was no value that the user may delete.
  virtual bool DeleteValue(const std::string& key, const std::string& name) const = 0;
  /// Deletes a key with its subkeys; returns false if it did not exist.  `key` must not be a root.
  virtual bool DeleteKey(const std::string& key) const = 0;
};

}  // namespace kestrel
