// The real registry: its two roots lead to fresh keys of the user's.
#include "support/TestRegistry.h"

#include <windows.h>

#include <stdexcept>
#include <string>

namespace kestrel {

namespace {

void Require(LSTATUS error, const char* what) {
  if (error != ERROR_SUCCESS) throw std::runtime_error(what + (": error " + std::to_string(error)));
}

}  // namespace

struct TTestRegistry::TImpl {
  const std::string Home = "Software\\Kestrel tests\\" + std::to_string(GetCurrentProcessId());

  void Redirect(HKEY root, HKEY user, const char* name) const {
    HKEY key = nullptr;
    Require(RegCreateKeyExA(user, (Home + "\\" + name).c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key,
                            nullptr),
            "create");
    Require(RegOverridePredefKey(root, key), "redirect");
    RegCloseKey(key);
  }
};

TTestRegistry::TTestRegistry() : impl_(std::make_unique<TImpl>()) {
  HKEY user = nullptr;
  Require(RegOpenCurrentUser(KEY_ALL_ACCESS, &user), "open");
  RegDeleteTreeA(user, impl_->Home.c_str());  // what a killed process of the same number left
  impl_->Redirect(HKEY_LOCAL_MACHINE, user, "machine");
  impl_->Redirect(HKEY_CURRENT_USER, user, "user");
  RegCloseKey(user);
}

TTestRegistry::~TTestRegistry() {
  for (HKEY root : {HKEY_LOCAL_MACHINE, HKEY_CURRENT_USER}) RegOverridePredefKey(root, nullptr);
  RegDeleteTreeA(HKEY_CURRENT_USER, impl_->Home.c_str());
}

}  // namespace kestrel
