// On the real registry.
#include <gmock/gmock.h>
#include <windows.h>

#include "host/Registry.h"
#include "support/TestRegistry.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class Registry : public testing::Test {
 protected:
  static std::string Read(const std::string& key, const std::string& name,
                          TRegRoot root = TRegRoot::LocalMachine) {
    TRegistry registry(root);
    return registry.OpenKeyReadOnly(key) ? registry.ReadString(name) : "no such key";
  }
  static void Write(const std::string& key, const std::string& name, const std::string& value,
                    TRegRoot root = TRegRoot::LocalMachine) {
    TRegistry registry(root);
    registry.OpenKey(key);
    registry.WriteString(name, value);
  }

  TTestRegistry registry_;
};

}  // namespace

TEST_F(Registry, KeepsEveryTextThatIsWritten) {
  const std::string texts[] = {"plain",
                               "",
                               " blanks ",
                               "\"quoted\"",
                               "two\r\nlines",
                               "100%PATH%",
                               "\\\\s\\h\\",
                               "Größe 名前 😀",
                               std::string(40'000, 'x')};
  for (const auto& text : texts) {
    Write("Software\\Ä\\SCC", "Wert " + text.substr(0, 20), text);
    EXPECT_EQ(Read("software\\ä\\scc\\", "WERT " + text.substr(0, 20)), text);
  }
  TRegistry registry;
  ASSERT_TRUE(registry.OpenKeyReadOnly("Software\\Ä\\SCC"));
  EXPECT_EQ(registry.GetValueNames().size(), std::size(texts));
  EXPECT_EQ(registry.ReadString("missing"), "");
}

TEST_F(Registry, KeepsTheRootsApart) {
  Write("Key", "name", "machine");
  Write("Key", "name", "user", TRegRoot::CurrentUser);
  EXPECT_EQ(Read("Key", "name"), "machine");
  EXPECT_EQ(Read("Key", "name", TRegRoot::CurrentUser), "user");
}

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
  EXPECT_EQ(Read("Software\\Vendor", "expanded"), "C:\\windows\\scc.dll");
  EXPECT_EQ(Read("Software\\Vendor", "no end"), "C:\\scc.dll");
  EXPECT_EQ(Read("Software\\Vendor", "number"), "") << "no text at all";
}

TEST_F(Registry, DeletesValuesAndKeysWithAllBelow) {
  for (const char* key : {"Software\\A", "Software\\A\\SCC", "Software\\AB"}) Write(key, "name", "value");
  TRegistry registry;
  EXPECT_FALSE(registry.DeleteKey("Software\\A\\SC"));
  EXPECT_TRUE(registry.DeleteKey("software\\a"));
  EXPECT_FALSE(registry.DeleteKey("Software\\A"));
  EXPECT_EQ(Read("Software\\A\\SCC", "name"), "no such key");

  registry.OpenKey("Software\\AB");
  EXPECT_EQ(registry.ReadString("name"), "value") << "a key that is open for writing can be read";
  EXPECT_THAT(registry.GetValueNames(), ElementsAre("name"));
  EXPECT_TRUE(registry.DeleteValue("NAME"));
  EXPECT_FALSE(registry.DeleteValue("name"));
  EXPECT_EQ(Read("Software\\AB", "name"), "");
  registry.OpenKey("Software\\never");
  EXPECT_FALSE(registry.DeleteValue("name"));
  EXPECT_EQ(Read("Software\\never", "name"), "no such key") << "asking leaves no trace";
}

TEST_F(Registry, ReadsNothingAndWritesNothingWithoutAKey) {
  TRegistry registry;
  EXPECT_FALSE(registry.OpenKeyReadOnly("Software\\missing"));
  EXPECT_EQ(registry.ReadString("name"), "");
  EXPECT_THAT(registry.GetValueNames(), IsEmpty());
  EXPECT_THROW(registry.WriteString("name", "value"), std::runtime_error);
  Write("Software\\A", "name", "value");
  ASSERT_TRUE(registry.OpenKeyReadOnly("Software\\A"));
  EXPECT_THROW(registry.WriteString("name", "value"), std::runtime_error) << "opened for reading";
  registry.CloseKey();
  EXPECT_EQ(registry.ReadString("name"), "");
}
