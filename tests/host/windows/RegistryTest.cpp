// On the real registry.
#include <windows.h>

#include "host/RegistryFixture.h"

namespace kestrel {

TEST_F(Registry, ReadsWhatInstallersWrite) {
  HKEY key = nullptr;
  RegCreateKeyExA(HKEY_LOCAL_MACHINE, "Software\\Vendor", 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key,
                  nullptr);
  const auto set = [key](const char* name, DWORD type, const void* data, std::size_t size) {
    RegSetValueExA(key, name, 0, type, static_cast<const BYTE*>(data), static_cast<DWORD>(size));
  };
  set("expanded", REG_EXPAND_SZ, "%SystemRoot%\\scc.dll", 21);
  set("no end", REG_SZ, "C:\\scc.dll", 10);
  set("number", REG_DWORD, "\1\0\0", 4);
  RegCloseKey(key);
  EXPECT_EQ(ReadValue("Software\\Vendor", "expanded"), "C:\\windows\\scc.dll");
  EXPECT_EQ(ReadValue("Software\\Vendor", "no end"), "C:\\scc.dll");
  EXPECT_EQ(ReadValue("Software\\Vendor", "number"), "") << "no text at all";
}

}  // namespace kestrel
