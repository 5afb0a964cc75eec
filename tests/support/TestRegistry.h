// A registry of the test's own, empty at the beginning and gone at the end; the process sees no other meanwhile.
#pragma once

#include <memory>
#include <string>

#include "system/Registry.h"

namespace kestrel {

/// A value of a key; "no such key" where the key is missing.
inline std::string ReadValue(const std::string& key, const std::string& name,
                             TRegRoot root = TRegRoot::LocalMachine) {
  TRegistry registry(root);
  return registry.OpenKeyReadOnly(key) ? registry.ReadString(name) : "no such key";
}

inline void WriteValue(const std::string& key, const std::string& name, const std::string& value,
                       TRegRoot root = TRegRoot::LocalMachine) {
  TRegistry registry(root);
  registry.OpenKey(key);
  registry.WriteString(name, value);
}

class TTestRegistry {
 public:
  TTestRegistry();
  TTestRegistry(const TTestRegistry&) = delete;
  TTestRegistry& operator=(const TTestRegistry&) = delete;
  ~TTestRegistry();

 private:
  struct TImpl;
  std::unique_ptr<TImpl> impl_;
};

}  // namespace kestrel
