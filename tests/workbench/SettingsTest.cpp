#include "support/TestRegistry.h"
#include "support/Testing.h"
#include "workbench/model/Settings.h"

namespace kestrel::workbench {

class Settings : public testing::Test {
 protected:
  TTestRegistry registry_;
};

TEST_F(Settings, KeepValuesOnlyWhenSaved) {
  TOptionsServices first(kSettingsKey);
  TPropertySet& set = first.PropertySet("SCMOptions");
  set.SetValue("UserName", "J\xC3\xBCrgen");
  EXPECT_EQ(TOptionsServices(kSettingsKey).PropertySet("SCMOptions").GetValue("UserName"), "");
  set.Save();
  EXPECT_EQ(TOptionsServices(kSettingsKey).PropertySet("scmoptions").GetValue("username"), "J\xC3\xBCrgen");
  set.SetValue("UserName", "lost");
  set.Load();
  EXPECT_EQ(set.GetValue("UserName"), "J\xC3\xBCrgen");
  EXPECT_EQ(&set, &first.PropertySet("scmOPTIONS"));
}

TEST_F(Settings, RememberTheLastFilesFirst) {
  TOptionsServices services(kSettingsKey);
  TRecentFiles recent(services.PropertySet(kRecentSet));
  for (int i = 0; i < 10; ++i) recent.Add("/p/" + std::to_string(i) + ".qvxproj");
  recent.Add("/p/5.QVXPROJ");
  const auto files = TRecentFiles(services.PropertySet(kRecentSet)).Files();
  EXPECT_EQ(files.size(), kMaxRecent);
  EXPECT_EQ(files[0], "/p/5.QVXPROJ");
  EXPECT_EQ(files[1], "/p/9.qvxproj");
}

TEST(PackagePaths, ComeOnePerLineOrWithSemicolons) {
  EXPECT_THAT(SplitPaths(" a.so \r\n\n;b c.so;; "), ElementsAre("a.so", "b c.so"));
  EXPECT_TRUE(SplitPaths("").empty());
}

}  // namespace kestrel::workbench
