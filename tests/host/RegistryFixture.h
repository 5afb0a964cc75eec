// Values and keys in a registry that is empty at the beginning.
#pragma once

#include "support/TestRegistry.h"
#include "support/Testing.h"

namespace kestrel {

class Registry : public testing::Test {
 protected:
  static std::vector<std::string> Names(const std::string& key) {
    TRegistry registry;
    return registry.OpenKeyReadOnly(key) ? registry.GetValueNames() : std::vector<std::string>{"no such key"};
  }
  static bool KeyExists(const std::string& key) { return TRegistry().OpenKeyReadOnly(key); }

  const TTestRegistry registry_;
};

}  // namespace kestrel
