// Where providers get text of 8 bits: this program has no manifest that asks for UTF-8.
#include <windows.h>

#include "expert/ExpertFixture.h"
#include "system/Text.h"
#include "wizards/CommitRows.h"
#include "wizards/PullProjectController.h"

namespace kestrel::addin {

class WizardsCodePage : public TExpertTest {
 protected:
  void SetUp() override {
    if (GetACP() != 1252) GTEST_SKIP() << "the system's code page is " << GetACP();
  }
};

TEST_F(WizardsCodePage, BoundsATargetAsTheProviderGetsIt) {
  Start();
  std::string umlauts = "C:\\";
  for (int i = 0; i < 257; ++i) umlauts += "ü";
  const struct {
    std::string target, problem;
  } rows[] = {
      {umlauts, ""},  // 260 bytes for the provider, twice as many here
      {umlauts + "x", umlauts + "x is longer than the 260 bytes"},
      {"C:\\名前", "Providers cannot take C:\\名前"},
  };
  for (const auto& row : rows) {
    TPullProjectController pages(expert_->Context());
    pages.FormCreate(0);
    pages.NextFinishButtonClick();
    pages.TargetDirectoryChange(row.target);
    pages.NextFinishButtonClick();
    EXPECT_THAT(pages.Page().Problem,
                row.problem.empty() ? testing::Matcher<std::string>(IsEmpty()) : HasSubstr(row.problem));
  }
}

TEST_F(WizardsCodePage, CommitRowsKnowTheProvidersNames) {
  Open();
  provider_->List = {{true, 1, ToCodePageExact(At("sub/Größe.pas"))}};
  provider_->StatusOf = [](const std::string&) { return 1; };
  std::vector<std::string> names;
  for (const auto& row : GatherCommitRows(expert_->Context())) {
    EXPECT_NE(row.Status, "Not Controlled") << row.FileName;
    names.push_back(row.FileName);
  }
  EXPECT_THAT(names, Contains(At("sub/Größe.pas")));
}

}  // namespace kestrel::addin
