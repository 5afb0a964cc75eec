// Adding, removing and getting files.
#include <gmock/gmock.h>

#include "Developer.h"

namespace kestrel::svnscc {

using testing::HasSubstr;
using testing::Not;

namespace {

struct Files : testing::Test {
  Files() { EXPECT_EQ(scc::SCC_OK, ann.Open(repository.Url(), "project")); }
  /// A colleague with everything in his folder.
  void BobJoins() {
    EXPECT_EQ(scc::SCC_OK, bob.Open(repository.Url(), "project"));
    EXPECT_EQ(scc::SCC_OK, bob.GetEverything()) << bob.Said();
  }
  TTestRepository repository;
  TDeveloper ann{"ann"};
  TDeveloper bob{"bob"};
};

constexpr scc::Long kControlled = 0x0001;
constexpr scc::Long kOutHere = 0x100B;

}  // namespace

TEST_F(Files, StoryOfAFile) {
  ann.Write("src/deep/unit1.pas", "1\n");
  EXPECT_EQ(0, ann.Status("src/deep/unit1.pas"));
  ASSERT_EQ(scc::SCC_OK, ann.Add({"src/deep/unit1.pas"}, "new unit")) << ann.Said();
  EXPECT_EQ("new unit", repository.Log(repository.Youngest()));
  EXPECT_EQ("*", repository.Property("project/src/deep/unit1.pas", "svn:needs-lock"));
  EXPECT_FALSE(ann.IsWritable("src/deep/unit1.pas"));
  EXPECT_EQ(kControlled, ann.Status("src/deep/unit1.pas"));
  EXPECT_EQ(scc::SCC_OK, ann.Add({"src/deep/unit1.pas"}))
      << "a form is named twice when it goes with its unit";
  EXPECT_EQ("I src/deep/unit1.pas was added already.\n", ann.Said());

  BobJoins();
  EXPECT_EQ(scc::SCC_E_FILEALREADYEXISTS, bob.Add({"src/deep/unit1.pas"}));
  EXPECT_EQ("1\n", bob.Read("src/deep/unit1.pas"));
  EXPECT_FALSE(bob.IsWritable("src/deep/unit1.pas"));

  ASSERT_EQ(scc::SCC_OK, ann.Remove({"src/deep/unit1.pas"}, "not needed")) << ann.Said();
  EXPECT_EQ("not needed", repository.Log(repository.Youngest()));
  EXPECT_FALSE(repository.Exists("project/src/deep/unit1.pas"));
  EXPECT_EQ("1\n", ann.Read("src/deep/unit1.pas"));
  EXPECT_TRUE(ann.IsWritable("src/deep/unit1.pas"));
  EXPECT_EQ(0, ann.Status("src/deep/unit1.pas"));

  ann.Write("src/deep/unit1.pas", "again\n");
  ASSERT_EQ(scc::SCC_OK, ann.Add({"src/deep/unit1.pas"})) << ann.Said();
  ASSERT_EQ(scc::SCC_OK, bob.Get({"src/deep/unit1.pas"})) << bob.Said();
  EXPECT_EQ("again\n", bob.Read("src/deep/unit1.pas"));
}

TEST_F(Files, AddCanKeepThemCheckedOut) {
  ann.Write("a.pas", "a\n");
  ann.Write("b.pas", "b\n");
  // One flag word for both files: the second would be read behind it.
  ASSERT_EQ(scc::SCC_OK, ann.Add({"a.pas", "b.pas"}, "", scc::SCC_KEEP_CHECKEDOUT)) << ann.Said();
  EXPECT_EQ((std::vector<scc::Long>{kOutHere, kOutHere}), ann.Statuses({"a.pas", "b.pas"}));
  EXPECT_TRUE(ann.IsWritable("b.pas"));
  repository.WriteHook("pre-lock", "exit 1\n");
  ann.Write("c.pas", "c\n");
  EXPECT_EQ(scc::SCC_OK, ann.Add({"c.pas"}, "", scc::SCC_KEEP_CHECKEDOUT)) << "it was added all the same";
  EXPECT_THAT(ann.Said(), HasSubstr("W c.pas was added, and could not be checked out: "));
}

TEST_F(Files, BinaryFilesAreMarkedAsSuch) {
  ann.Write("plain.dat", "looks like text\n");
  ASSERT_EQ(scc::SCC_OK, ann.Add({"plain.dat"}, "", scc::SCC_FILETYPE_BINARY));
  EXPECT_EQ("application/octet-stream", repository.Property("project/plain.dat", "svn:mime-type"));
}

TEST_F(Files, WhatCannotBeAddedIsToldAndNothingIsLeftBehind) {
  EXPECT_EQ(scc::SCC_E_FILENOTEXIST, ann.Add({"missing.pas"}));
  EXPECT_EQ("E missing.pas: there is no such file on this computer\n", ann.Said());
  std::filesystem::create_directory(ann.File("folder"));
  EXPECT_EQ(scc::SCC_E_TYPENOTSUPPORTED, ann.Add({"folder"}));
  EXPECT_EQ(scc::SCC_E_FILENOTCONTROLLED, ann.Add({"../outside.pas"}));

  repository.WriteHook("pre-commit", "exit 1\n");
  ann.Write("new/unit1.pas", "1\n");
  EXPECT_EQ(scc::SCC_E_NOTAUTHORIZED, ann.Add({"new/unit1.pas"}));
  EXPECT_THAT(ann.Said(), Not(HasSubstr("Undid")));
  EXPECT_EQ(0, ann.Status("new/unit1.pas"));
  repository.WriteHook("pre-commit", "exit 0\n");
  EXPECT_EQ(scc::SCC_OK, ann.Add({"new/unit1.pas"})) << ann.Said();
}

TEST_F(Files, ANameThatTheColleagueAddedFirstIsNotOverwritten) {
  BobJoins();
  ann.Write("sub/unit1.pas", "ann\n");
  ann.Add({"sub/unit1.pas"});
  bob.Write("sub/unit1.pas", "bob\n");
  EXPECT_EQ(scc::SCC_E_FILEALREADYEXISTS, bob.Add({"sub/unit1.pas"})) << bob.Said();
  EXPECT_EQ("bob\n", bob.Read("sub/unit1.pas"));
  EXPECT_EQ("ann\n", repository.Contents("project/sub/unit1.pas"));
  // Nor is it later: his stays beside hers when he takes it.
  EXPECT_EQ(scc::SCC_E_OPNOTPERFORMED, bob.CheckOut({"sub/unit1.pas"})) << bob.Said();
  EXPECT_EQ(scc::SCC_E_CHECKINCONFLICT, bob.Remove({"sub/unit1.pas"}));
  EXPECT_EQ(kControlled | scc::SCC_STATUS_OUTOFDATE, bob.Status("sub/unit1.pas"));
  ASSERT_EQ(scc::SCC_OK, bob.Get({"sub/unit1.pas"}));
  EXPECT_THAT(bob.Said(), HasSubstr("kept as sub/unit1.pas.mine"));
  EXPECT_EQ("ann\n", bob.Read("sub/unit1.pas"));
  EXPECT_EQ("bob\n", bob.Read("sub/unit1.pas.mine"));
}

// A folder that was deleted comes back with the file, and its other files stay as they are.
TEST_F(Files, WhatTheColleagueDeletedCanBeAddedAgain) {
  const std::string name = "sub/" + std::string(250, 'u');
  ann.Write(name, "ann\n");
  ann.Write("sub/other.pas", "other\n");
  ann.Add({name, "sub/other.pas"});
  BobJoins();
  const std::string remove = "svn rm -q -m gone " + repository.Url() + "/project/sub";
  ASSERT_EQ(0, std::system(remove.c_str()));
  std::filesystem::permissions(bob.File(name), std::filesystem::perms::owner_all);
  bob.Write(name, "bob\n");
  EXPECT_EQ((std::vector<scc::Long>{0x0841, 0x0041}), bob.Statuses({name, "sub/other.pas"}));
  EXPECT_EQ(scc::SCC_E_FIXMERGE, bob.Get({name}));
  EXPECT_EQ(scc::SCC_E_FILENOTCONTROLLED, bob.CheckOut({name}));
  ASSERT_EQ(scc::SCC_OK, bob.Add({name})) << bob.Said();
  EXPECT_EQ("bob\n", bob.Read(name));
  EXPECT_EQ("bob\n", repository.Contents("project/" + name));
  EXPECT_EQ("other\n", bob.Read("sub/other.pas"));
  EXPECT_EQ((std::vector<scc::Long>{kControlled, 0}), bob.Statuses({name, "sub/other.pas"}));
}

TEST_F(Files, ACheckedOutFileIsNotRemoved) {
  ann.Write("a.pas", "a\n");
  ann.Write("b.pas", "b\n");
  ann.Add({"a.pas", "b.pas"});
  ann.CheckOut({"a.pas"});
  EXPECT_EQ(scc::SCC_E_FILEISCHECKEDOUT, ann.Remove({"a.pas", "b.pas"}));
  EXPECT_THAT(ann.Said(), HasSubstr("E a.pas: the file is checked out"));
  EXPECT_TRUE(repository.Exists("project/a.pas"));
  EXPECT_FALSE(repository.Exists("project/b.pas"));
  EXPECT_EQ(scc::SCC_E_FILENOTCONTROLLED, ann.Remove({"nonsense.pas"}));
}

TEST_F(Files, ARefusedRemovalChangesNothingHere) {
  ann.Write("a.pas", "a\n");
  ann.Add({"a.pas"});
  std::filesystem::permissions(ann.File("a.pas"), std::filesystem::perms::owner_all);
  ann.Write("a.pas", "edited\n");
  repository.WriteHook("pre-commit", "exit 1\n");
  EXPECT_EQ(scc::SCC_E_NOTAUTHORIZED, ann.Remove({"a.pas"}));
  EXPECT_EQ("edited\n", ann.Read("a.pas"));
  EXPECT_EQ(kControlled | scc::SCC_STATUS_MODIFIED, ann.Status("a.pas"));
}

TEST_F(Files, RemovingWhatIsOnlyInTheRepositoryLeavesNothingBehind) {
  EXPECT_EQ(scc::SCC_OK, bob.Open(repository.Url(), "project"));
  ann.Write("sub/a.pas", "a\n");
  ann.Write("sub/b.pas", "b\n");
  ann.Add({"sub/a.pas", "sub/b.pas"});
  ann.Write("far/c.pas", "c\n");
  ann.Add({"far/c.pas"});
  ASSERT_EQ(scc::SCC_OK, bob.Remove({"far/c.pas"})) << bob.Said();
  ASSERT_EQ(scc::SCC_OK, bob.Remove({"sub/a.pas", "sub/b.pas"})) << bob.Said();
  EXPECT_FALSE(repository.Exists("project/sub/a.pas"));
  EXPECT_FALSE(bob.Has("sub/a.pas"));
}

TEST_F(Files, AFolderIsFetchedAloneOrWithAllBelow) {
  for (const auto* name : {"top.pas", "src/a.pas", "src/deep/b.pas"}) {
    ann.Write(name, "1\n");
    ASSERT_EQ(scc::SCC_OK, ann.Add({name}));
  }
  EXPECT_EQ(scc::SCC_OK, bob.Open(repository.Url(), "project"));
  ASSERT_EQ(scc::SCC_OK, bob.Get({"src"}, scc::SCC_GET_ALL)) << bob.Said();
  EXPECT_TRUE(bob.Has("src/a.pas"));
  EXPECT_FALSE(bob.Has("src/deep/b.pas"));
  EXPECT_FALSE(bob.Has("top.pas"));
  ASSERT_EQ(scc::SCC_OK, bob.GetEverything());
  EXPECT_TRUE(bob.Has("src/deep/b.pas"));
  // What was fetched by itself below a folder stays when the folder's own files are fetched.
  TDeveloper carl("carl");
  EXPECT_EQ(scc::SCC_OK, carl.Open(repository.Url(), "project"));
  ASSERT_EQ(scc::SCC_OK, carl.Get({"src/deep/b.pas"}));
  ASSERT_EQ(scc::SCC_OK, carl.Get({"src"}, scc::SCC_GET_ALL)) << carl.Said();
  EXPECT_TRUE(carl.Has("src/a.pas"));
  EXPECT_TRUE(carl.Has("src/deep/b.pas"));
  // Once everything is here, a shallow get takes nothing away.
  ASSERT_EQ(scc::SCC_OK, bob.Get({"src"}, scc::SCC_GET_ALL));
  EXPECT_TRUE(bob.Has("src/deep/b.pas"));
  EXPECT_EQ(scc::SCC_E_FILENOTCONTROLLED, bob.Get({"nowhere"}, scc::SCC_GET_ALL));
}

TEST_F(Files, AllFilesOfANewFolderComeInOneGet) {
  std::vector<std::string> names;
  for (int i = 0; i < 20; ++i) {
    names.push_back("unit" + std::to_string(i) + ".pas");
    ann.Write(names.back(), "1\n");
  }
  ASSERT_EQ(scc::SCC_OK, ann.Add(names));
  EXPECT_EQ(scc::SCC_OK, bob.Open(repository.Url(), "project"));
  std::filesystem::remove_all(bob.File(".svn"));  // somebody cleaned up: the get binds the folder again
  ASSERT_EQ(scc::SCC_OK, bob.Get(names)) << bob.Said();
  for (const auto& name : names) EXPECT_TRUE(bob.Has(name)) << name;
}

TEST_F(Files, OddNamesGoThroughEveryCommand) {
  for (const std::string name : {"with blanks.pas", "-dash.pas", "at@2.pas", "Größe.pas", "日本.pas",
                                 "per%20cent.pas", "hash#1.pas", "a&b.pas", "--help/-r.pas", "@at/x@.pas"}) {
    SCOPED_TRACE(name);
    ann.Write(name, "1\n");
    ASSERT_EQ(scc::SCC_OK, ann.Add({name})) << ann.Said();
    ASSERT_EQ(scc::SCC_OK, ann.CheckOut({name})) << ann.Said();
    EXPECT_EQ(kOutHere, ann.Status(name));
    ann.Write(name, "22\n");
    EXPECT_EQ(scc::SCC_I_FILEDIFFERS, ann.QuickDiff(name));
    ASSERT_EQ(scc::SCC_OK, ann.CheckIn({name})) << ann.Said();
    EXPECT_EQ("22\n", repository.Contents("project/" + name));
    std::filesystem::remove(ann.File(name));
    ASSERT_EQ(scc::SCC_OK, ann.Get({name})) << ann.Said();
    EXPECT_EQ("22\n", ann.Read(name));
    ASSERT_EQ(scc::SCC_OK, ann.CheckOut({name}));
    ASSERT_EQ(scc::SCC_OK, ann.Undo({name})) << ann.Said();
    ASSERT_EQ(scc::SCC_OK, ann.Remove({name})) << ann.Said();
    EXPECT_EQ(0, ann.Status(name));
  }
}

TEST_F(Files, AddsAllFilesOfACallInOneRevision) {
  const svn_revnum_t before = repository.Youngest();
  ann.Write("sub/deep/a.pas", "1\n");
  ann.Write("sub/b.pas", "1\n");
  ann.Write("c.pas", "1\n");
  EXPECT_EQ(scc::SCC_E_FILENOTEXIST,
            ann.Add({"sub/deep/a.pas", "nothing.pas", "sub/b.pas", "c.pas"}, "three"));
  EXPECT_EQ(before + 1, repository.Youngest());
  EXPECT_EQ("three", repository.Log(before + 1));
  for (const char* name : {"sub/deep/a.pas", "sub/b.pas", "c.pas"})
    EXPECT_TRUE(repository.Exists(std::string("project/") + name)) << name;
}

TEST_F(Files, OneRefusedFileDoesNotHoldUpTheOthers) {
  repository.WriteHook(
      "pre-commit",
      "svnlook changed -t \"$2\" \"$1\" | grep -q 'bad' && { echo 'no bad names' >&2; exit 1; }\nexit 0\n");
  ann.Write("new/bad.pas", "1\n");
  ann.Write("other/good.pas", "1\n");
  EXPECT_EQ(scc::SCC_E_NOTAUTHORIZED, ann.Add({"new/bad.pas", "other/good.pas"}));
  EXPECT_THAT(ann.Said(), HasSubstr("no bad names"));
  EXPECT_TRUE(repository.Exists("project/other/good.pas"));
  EXPECT_FALSE(repository.Exists("project/new"));
  EXPECT_EQ((std::vector<scc::Long>{0, 1}), ann.Statuses({"new/bad.pas", "other/good.pas"}));
  EXPECT_EQ("1\n", ann.Read("new/bad.pas"));
}

}  // namespace kestrel::svnscc
