#include "host/RegistryFixture.h"

namespace kestrel {

TEST_F(Registry, KeepsValuesUnderNamesWhoseCaseDoesNotCount) {
  const std::string texts[] = {"plain",
                               "",
                               " blanks ",
                               "\"quoted\"",
                               "two\r\nlines",
                               "100%PATH%",
                               "\\\\server\\share\\",
                               "Größe 名前 😀",
                               std::string(40'000, 'x')};
  for (const auto& text : texts) {
    WriteValue("Software\\Ä\\SCC", "Wert " + text.substr(0, 20), text);
    EXPECT_EQ(ReadValue("software\\ä\\scc\\", "WERT " + text.substr(0, 20)), text);
  }
  EXPECT_EQ(Names("Software\\Ä\\SCC").size(), std::size(texts));
  EXPECT_EQ(ReadValue("Software\\Ä\\SCC", "missing"), "");
}

TEST_F(Registry, KeepsItsRootsApart) {
  WriteValue("Key", "name", "machine");
  WriteValue("Key", "name", "user", TRegRoot::CurrentUser);
  EXPECT_EQ(ReadValue("Key", "name"), "machine");
  EXPECT_EQ(ReadValue("Key", "name", TRegRoot::CurrentUser), "user");
}

TEST_F(Registry, DeletesValuesAndKeysWithAllBelow) {
  for (const char* key : {"Software\\A", "Software\\A\\SCC", "Software\\AB"})
    WriteValue(key, "name", "value");
  EXPECT_TRUE(KeyExists("Software")) << "a key above one that exists";
  EXPECT_FALSE(KeyExists("Soft"));

  TRegistry registry;
  EXPECT_FALSE(registry.DeleteKey("Software\\A\\SC"));
  EXPECT_TRUE(registry.DeleteKey("software\\a"));
  EXPECT_FALSE(registry.DeleteKey("Software\\A"));
  EXPECT_FALSE(KeyExists("Software\\A\\SCC"));
  for (const char* root : {"", "\\"}) EXPECT_THROW(registry.DeleteKey(root), std::runtime_error);

  registry.OpenKey("Software\\AB");
  EXPECT_EQ(registry.ReadString("name"), "value") << "a key that is open for writing can be read";
  EXPECT_THAT(registry.GetValueNames(), ElementsAre("name"));
  EXPECT_TRUE(registry.DeleteValue("NAME"));
  EXPECT_FALSE(registry.DeleteValue("name"));
  EXPECT_THAT(Names("Software\\AB"), IsEmpty()) << "the key itself stays";
  registry.OpenKey("Software\\never");
  EXPECT_FALSE(registry.DeleteValue("name"));
  EXPECT_FALSE(KeyExists("Software\\never")) << "asking leaves no trace";
}

TEST_F(Registry, LooksIntoAKeyOnlyWhileItIsOpen) {
  WriteValue("Key", "name", "value");
  TRegistry registry;
  EXPECT_EQ(registry.ReadString("name"), "");
  ASSERT_TRUE(registry.OpenKeyReadOnly("Key"));
  EXPECT_THROW(registry.WriteString("name", "other"), std::runtime_error) << "opened for reading";
  EXPECT_THROW(registry.DeleteValue("name"), std::runtime_error);
  EXPECT_FALSE(registry.OpenKeyReadOnly("Missing"));
  WriteValue("Missing", "name", "too late");
  EXPECT_EQ(registry.ReadString("name"), "") << "the key opened before is closed, and no other open";
  EXPECT_THAT(registry.GetValueNames(), IsEmpty());
  registry.OpenKey("Key");
  EXPECT_EQ(registry.ReadString("name"), "value");
  registry.CloseKey();
  EXPECT_THROW(registry.WriteString("name", "other"), std::runtime_error);
  EXPECT_EQ(ReadValue("Key", "name"), "value");
}

}  // namespace kestrel
