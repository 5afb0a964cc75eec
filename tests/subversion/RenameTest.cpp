// Renaming in the repository: the file on disk is the client's.

#include "Developer.h"
#include "system/System.h"

namespace kestrel::svnscc {

namespace {

struct Rename : TTeam {
  Rename() {
    ann.AddNew({"old.pas"}, "1\n");
    ann.AddNew({"other.pas"}, "other\n");
  }
  scc::Long Run(const std::string& from, const std::string& to) {
    return ann.Library()->SccRename(ann.Context(), nullptr, ann.File(from).c_str(), ann.File(to).c_str());
  }
  void OnDisk(const std::string& from, const std::string& to) {
    std::filesystem::create_directories(std::filesystem::path(ann.File(to)).parent_path());
    std::filesystem::rename(ann.File(from), ann.File(to));
  }
};

}  // namespace

// The client renames before or after, in the same folder or into a new one, with or without edits.
TEST_F(Rename, LeavesTheFileUnderTheNameItHas) {
  for (const bool clientFirst : {true, false})
    for (const std::string target : {"new.pas", "sub/deep/new.pas"})
      for (const bool edited : {true, false}) {
        SCOPED_TRACE(testing::Message()
                     << target << (clientFirst ? " client first" : "") << (edited ? " edited" : ""));
        if (edited) {
          ann.Edit("old.pas", "edited for " + target + (clientFirst ? " first\n" : "\n"));
        }
        const std::string stored = repository.Contents("project/old.pas");
        const std::string local = ann.Read("old.pas");
        if (clientFirst) OnDisk("old.pas", target);
        ASSERT_EQ(scc::SCC_OK, Run("old.pas", target)) << ann.Said();
        EXPECT_EQ(clientFirst, ann.Has(target));
        EXPECT_EQ(!clientFirst, ann.Has("old.pas"));
        if (!clientFirst) OnDisk("old.pas", target);
        EXPECT_EQ(local, ann.Read(target));
        EXPECT_EQ(edited, ann.IsWritable(target));
        EXPECT_EQ(stored, repository.Contents("project/" + target));  // edits are not checked in
        EXPECT_FALSE(repository.Exists("project/old.pas"));
        EXPECT_EQ((TStatuses{0, edited ? 0x180B : 1}), ann.Statuses({"old.pas", target}));
        if (edited) {
          EXPECT_EQ(scc::SCC_OK, ann.CheckIn({target})) << ann.Said();
        }
        ASSERT_EQ(scc::SCC_OK, Run(target, "old.pas")) << ann.Said();
        OnDisk(target, "old.pas");
      }
}

TEST_F(Rename, WorksWithNothingAndWithBothOnDisk) {
  ann.Write("new.pas", "someone's\n");
  ASSERT_EQ(scc::SCC_OK, Run("old.pas", "new.pas")) << ann.Said();
  EXPECT_EQ("1\n", ann.Read("old.pas"));
  EXPECT_EQ("someone's\n", ann.Read("new.pas"));
  EXPECT_EQ("1\n", repository.Contents("project/new.pas"));
  std::filesystem::remove(ann.File("other.pas"));
  ASSERT_EQ(scc::SCC_OK, Run("other.pas", "another.pas")) << ann.Said();
  EXPECT_FALSE(ann.Has("other.pas") || ann.Has("another.pas"));
  EXPECT_EQ(scc::SCC_OK, ann.Get({"another.pas"}));
  EXPECT_EQ("other\n", ann.Read("another.pas"));
}

TEST_F(Rename, RefusedRenamesChangeNothing) {
  Join(bob);
  bob.CheckOut({"old.pas"});
  ann.Write("new.pas", "not added\n");
  EXPECT_EQ(scc::SCC_E_FILEOUTEXCLUSIVE, Run("old.pas", "x.pas"));
  bob.Write("old.pas", "2\n");
  bob.CheckIn({"old.pas"});
  EXPECT_EQ(scc::SCC_E_OPNOTPERFORMED, Run("old.pas", "x.pas"));
  EXPECT_THAT(ann.Said(), HasSubstr("not the newest"));
  ann.Get({"old.pas"});
  EXPECT_EQ(scc::SCC_E_FILEALREADYEXISTS, Run("old.pas", "other.pas"));
  EXPECT_EQ(scc::SCC_E_FILENOTCONTROLLED, Run("new.pas", "x.pas"));
  EXPECT_EQ(scc::SCC_E_OPNOTPERFORMED, Run("old.pas", "../x.pas"));
  repository.WriteHook("pre-commit", "echo 'not today' >&2; exit 1\n");
  ann.Edit("old.pas", "edited\n");
  EXPECT_EQ(scc::SCC_E_NOTAUTHORIZED, Run("old.pas", "sub/x.pas"));
  EXPECT_THAT(ann.Said(), HasSubstr("not today"));
  EXPECT_EQ("edited\n", ann.Read("old.pas"));
  EXPECT_EQ((TStatuses{0x180B, 0, 0}), ann.Statuses({"old.pas", "sub/x.pas", "new.pas"}));
  EXPECT_EQ("not added\n", ann.Read("new.pas"));
}

}  // namespace kestrel::svnscc
