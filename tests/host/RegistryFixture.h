// Values and keys in a registry that is empty at the beginning.
#pragma once

#include "support/TestRegistry.h"
#include "support/Testing.h"
#include "system/Registry.h"

namespace kestrel {

class Registry : public testing::Test {
 protected:
  static std::string Read(const std::string& key, const std::string& name,
                          TRegRoot root = TRegRoot::LocalMachine) {
    TRegistry registry(root);
    return registry.OpenKeyReadOnly(key) ? registry.ReadString(name) : "no such key";
  }
  static std::vector<std::string> Names(const std::string& key) {
    TRegistry registry;
    return registry.OpenKeyReadOnly(key) ? registry.GetValueNames() : std::vector<std::string>{"no such key"};
  }
  static void Write(const std::string& key, const std::string& name, const std::string& value,
                    TRegRoot root = TRegRoot::LocalMachine) {
    TRegistry registry(root);
    registry.OpenKey(key);
    registry.WriteString(name, value);
  }
  static bool KeyExists(const std::string& key) { return TRegistry().OpenKeyReadOnly(key); }

  const TTestRegistry registry_;
};

}  // namespace kestrel
