#include "provider/sccapiintf.h"
#include "support/TestRegistry.h"
#include "support/Testing.h"
#include "system/Registry.h"

namespace kestrel::addin {

namespace {

/// A registry of its own in a fresh folder.
struct Discovery : testing::Test {
  static void Write(const std::string& key, const std::string& name, const std::string& value) {
    TRegistry registry;
    registry.OpenKey(key);
    registry.WriteString(name, value);
  }
  static std::pair<std::string, std::string> Default() {
    std::string name = "old", path = "old";
    GetDefaultProvider(name, path);
    return {name, path};
  }

  TTestRegistry redirection;
};

using Pair = std::pair<std::string, std::string>;

TEST_F(Discovery, SomethingIsInstalledWhenTheKeyHoldsAValue) {
  EXPECT_FALSE(SCCProviderInstalled());
  Write(kInstalledProvidersKey, "Example", "Software\\Example");
  EXPECT_TRUE(SCCProviderInstalled());
  TRegistry registry;
  registry.OpenKey(kInstalledProvidersKey);
  registry.DeleteValue("Example");
  EXPECT_FALSE(SCCProviderInstalled());
}

TEST_F(Discovery, TheDefaultProviderIsWhatItsKeySays) {
  EXPECT_EQ(Default(), Pair("", ""));
  Write(kProviderKey, kProviderRegKey, "Software\\Example");
  EXPECT_EQ(Default(), Pair("", "")) << "the provider's own key is missing";
  Write("Software\\Example", kServerName, "Example");
  EXPECT_EQ(Default(), Pair("Example", ""));
  Write("Software\\Example", "SCCServerPath", "/opt/example.so");
  EXPECT_EQ(Default(), Pair("Example", "/opt/example.so"));

  Write("Software\\Example", kSearchPath, "1");
  EXPECT_FALSE(SearchesPath("/opt/example.so")) << "it is not in the list";
  Write(kInstalledProvidersKey, "Other", "Software\\Other");
  Write(kInstalledProvidersKey, "Example", "Software\\Example");
  EXPECT_TRUE(SearchesPath("/opt/example.so"));
  EXPECT_FALSE(SearchesPath("/opt/other.so"));
  Write("Software\\Example", kSearchPath, "0");
  EXPECT_FALSE(SearchesPath("/opt/example.so"));
}

}  // namespace

}  // namespace kestrel::addin
