#include "provider/sccapiintf.h"
#include "support/TestRegistry.h"
#include "support/Testing.h"
#include "system/Registry.h"

namespace kestrel::addin {

struct Discovery : testing::Test {
  static std::pair<std::string, std::string> Default() {
    std::string name = "old", path = "old";
    GetDefaultProvider(name, path);
    return {name, path};
  }

  TTestRegistry redirection;
};

using Pair = std::pair<std::string, std::string>;

TEST_F(Discovery, AProviderIsInstalledWhenTheKeyHoldsAValue) {
  EXPECT_FALSE(SCCProviderInstalled());
  WriteValue(kInstalledProvidersKey, "Example", "Software\\Example");
  EXPECT_TRUE(SCCProviderInstalled());
  TRegistry registry;
  registry.OpenKey(kInstalledProvidersKey);
  registry.DeleteValue("Example");
  EXPECT_FALSE(SCCProviderInstalled());
}

TEST_F(Discovery, ReadsTheDefaultProviderFromItsKey) {
  EXPECT_EQ(Default(), Pair("", ""));
  WriteValue(kProviderKey, kProviderRegKey, "Software\\Example");
  EXPECT_EQ(Default(), Pair("", "")) << "the provider's own key is missing";
  WriteValue("Software\\Example", kServerName, "Example");
  EXPECT_EQ(Default(), Pair("Example", ""));
  WriteValue("Software\\Example", "SCCServerPath", "/opt/example.so");
  EXPECT_EQ(Default(), Pair("Example", "/opt/example.so"));

  WriteValue("Software\\Example", kSearchPath, "1");
  EXPECT_FALSE(SearchesPath("/opt/example.so")) << "it is not in the list";
  WriteValue(kInstalledProvidersKey, "Other", "Software\\Other");
  WriteValue(kInstalledProvidersKey, "Example", "Software\\Example");
  EXPECT_TRUE(SearchesPath("/opt/example.so"));
  EXPECT_FALSE(SearchesPath("/opt/other.so"));
  WriteValue("Software\\Example", kSearchPath, "0");
  EXPECT_FALSE(SearchesPath("/opt/example.so"));
}

}  // namespace kestrel::addin
