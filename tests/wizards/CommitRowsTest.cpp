// What the commit browser lists and proposes.
#include "expert/ExpertFixture.h"
#include "wizards/CommitRows.h"

namespace kestrel::addin {

using namespace scc;
constexpr Long kMine = SCC_STATUS_CONTROLLED | SCC_STATUS_CHECKEDOUT | SCC_STATUS_OUTBYUSER;
constexpr Long kTheirs = SCC_STATUS_CONTROLLED | SCC_STATUS_OUTOTHER;

TEST(CommitRowRules, ProposeAnActivityByStatusAndDifference) {
  const struct {
    const char* Name;
    Long Status;
    std::string WhenSame, WhenModified;
  } rows[] = {
      {"no information", -1, "Invalid status returned! No activity", "Invalid status returned! No activity"},
      {"not controlled", 0, "Not Controlled Add", "Not Controlled Add"},
      {"bits without control", kMine & ~1, "Not Controlled Add", "Not Controlled Add"},
      {"deleted", 0x41, "Not Controlled Add", "Not Controlled Add"},
      {"deleted and mine", kMine | 0x40, "Not Controlled Add", "Not Controlled Add"},
      {"mine", kMine, "Checked out/Up to date No activity", "Checked out/Modified Commit"},
      {"mine and out of date", kMine | 0x820, "Checked out/Up to date No activity",
       "Checked out/Modified Commit"},
      {"mine and another's", kMine | 0x4, "Checked out/Up to date No activity",
       "Checked out/Modified Commit"},
      {"mine, elsewhere", 0x1001, "Up to date No activity", "Modified Get Latest"},
      {"out, by nobody named", 0x3, "Up to date No activity", "Modified Get Latest"},
      {"another's", kTheirs, "Checked out by another user/Up To date No activity",
       "Checked out by another user/Modified Get Latest"},
      {"another's and out of date", kTheirs | 0x20, "Checked out by another user/Up To date No activity",
       "Checked out by another user/Modified Get Latest"},
      {"modified there", 0x801, "Modified Get Latest", "Modified Get Latest"},
      {"out of date", 0x21, "Modified Get Latest", "Modified Get Latest"},
      {"controlled", 0x1, "Up to date No activity", "Modified Get Latest"},
      {"shared and pinned", 0x601, "Up to date No activity", "Modified Get Latest"},
  };
  const auto classify = [](Long status, bool modified) {
    const auto row = ClassifyCommitRow(status, modified);
    return std::string(row.Status) + " " + ActivityToString(row.Activity);
  };
  for (const auto& row : rows) {
    EXPECT_EQ(classify(row.Status, false), row.WhenSame) << row.Name;
    EXPECT_EQ(classify(row.Status, true), row.WhenModified) << row.Name;
  }
}

TEST(CommitRowRules, ALetterSelectsTheNextActivityThatBeginsWithIt) {
  EXPECT_EQ(NextActivityWith('c', caNone), caCommit);
  EXPECT_EQ(NextActivityWith('C', caCommit), caCheckout);
  EXPECT_EQ(NextActivityWith('c', caCheckout), caCommit);
  EXPECT_EQ(NextActivityWith('G', caGetLatest), caGetLatest);
  EXPECT_EQ(NextActivityWith('x', caNone), std::nullopt);
}

class CommitRowList : public TExpertTest {
 protected:
  /// "name: state/activity" of each row.
  std::vector<std::string> Rows() {
    std::vector<std::string> texts;
    for (const auto& row : GatherCommitRows(expert_->Context())) {
      EXPECT_EQ(row.Comment, "");
      texts.push_back(RelativePath(At(""), row.FileName) + ": " + row.Status + "/" +
                      ActivityToString(row.Activity));
    }
    return texts;
  }
};

TEST_F(CommitRowList, HoldsTheProjectsFilesAndThoseThatTheProviderKnows) {
  folder_.MakeFolder("work/sub/deep");
  units_.push_back(At("UNIT1.pas"));
  units_.push_back(folder_.Write("lib/shared.pas", "x"));
  units_.push_back(At("gone.pas"));
  Open();
  provider_->List = {
      {true, 1, At("sub/known.pas")},
      {false, 0x41, At("sub/gone too.pas")},
      {true, 0, At("sub/new.pas")},
      {true, -1, At("sub/unsure.pas")},
      {true, 1, At("unit2.pas")},
      {true, 1, std::nullopt},
      {true, 1, ""},
  };
  provider_->StatusOf = [this](const std::string& file) {
    if (file == At("unit1.pas")) return kMine;
    if (file == At("unit2.pas")) return kTheirs;
    if (file == At("unit1.kfm")) return Long{-1};
    if (file == At("sub/gone too.pas")) return Long{0x41};
    return file == At("App.qvxproj") ? Long{0} : Long{1};
  };
  provider_->Differing = {At("unit1.pas"), At("App.qvxproj"), At("unit1.kfm")};

  EXPECT_THAT(
      Rows(),
      ElementsAre(Native("../lib/shared.pas") + ": Up to date/No activity", "App.qvxproj: Not Controlled/Add",
                  Native("sub/gone too.pas") + ": Not Controlled/Add",
                  Native("sub/known.pas") + ": Modified/Get Latest",
                  "unit1.kfm: Invalid status returned!/No activity", "unit1.pas: Checked out/Modified/Commit",
                  "unit2.pas: Checked out by another user/Up To date/No activity"));

  const auto& populate = provider_->Last("SccPopulateList");
  EXPECT_EQ(populate.Command, SCC_COMMAND_GET);
  EXPECT_EQ(populate.Flags, SCC_PL_DIR);
  EXPECT_THAT(populate.Files, ElementsAre(folder_ / "lib/", At(""), At("sub/"), At("sub/deep/")));
  EXPECT_EQ(provider_->Count("SccPopulateList"), 1);
  EXPECT_EQ(provider_->Count("SccQueryInfo"), 1);
  EXPECT_EQ(provider_->Count("SccDiff"), 3) << "one for each controlled file on disk";
  EXPECT_EQ(provider_->Last("SccDiff").Flags, SCC_DIFF_QD_CONTENTS);
  EXPECT_THAT(forms_.Boxes, IsEmpty());
}

TEST_F(CommitRowList, KeepsItsRowsWhenTheQueryFails) {
  Open();
  provider_->Results["SccQueryInfo"] = SCC_E_ACCESSFAILURE;
  EXPECT_EQ(Rows().size(), 4U);
  EXPECT_THAT(forms_.Boxes,
              ElementsAre(TShownBox{
                  "Commit Browser",
                  "Problem accessing the SCC system, network or contention problem. Try later", metError}));
}

TEST_F(CommitRowList, RefusesAListWithoutEnd) {
  auto& expert = Open();
  provider_->Faults.FloodList = true;
  EXPECT_THAT(AbortOf([&] { GatherCommitRows(expert.Context()); }), HasSubstr("65536"));
}

}  // namespace kestrel::addin
