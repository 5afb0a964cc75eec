// Adding, removing and getting files.

#include "Developer.h"

namespace kestrel::svnscc {

namespace {
using Files = TTeam;
}

TEST_F(Files, AreAddedRemovedAndAddedAgain) {
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

  Join(bob);
  EXPECT_EQ(scc::SCC_E_FILEALREADYEXISTS, bob.Add({"src/deep/unit1.pas"}));
  EXPECT_EQ("1\n", bob.Read("src/deep/unit1.pas"));
  EXPECT_FALSE(bob.IsWritable("src/deep/unit1.pas"));

  ASSERT_EQ(scc::SCC_OK, ann.Remove({"src/deep/unit1.pas"}, "not needed")) << ann.Said();
  EXPECT_EQ("not needed", repository.Log(repository.Youngest()));
  EXPECT_FALSE(repository.Exists("project/src/deep/unit1.pas"));
  EXPECT_EQ("1\n", ann.Read("src/deep/unit1.pas"));
  EXPECT_TRUE(ann.IsWritable("src/deep/unit1.pas"));
  EXPECT_EQ(0, ann.Status("src/deep/unit1.pas"));

  ann.AddNew({"src/deep/unit1.pas"}, "again\n");
  ASSERT_EQ(scc::SCC_OK, bob.Get({"src/deep/unit1.pas"})) << bob.Said();
  EXPECT_EQ("again\n", bob.Read("src/deep/unit1.pas"));
}

TEST_F(Files, StayCheckedOutWhenAddedSo) {
  // One flag word for both files: the second would be read behind it.
  ann.AddNew({"a.pas", "b.pas"}, "1\n", scc::SCC_KEEP_CHECKEDOUT);
  EXPECT_EQ((TStatuses{kOutHere, kOutHere}), ann.Statuses({"a.pas", "b.pas"}));
  EXPECT_TRUE(ann.IsWritable("b.pas"));
  repository.WriteHook("pre-lock", "exit 1\n");
  ann.AddNew({"c.pas"}, "1\n", scc::SCC_KEEP_CHECKEDOUT);
  EXPECT_THAT(ann.Said(), HasSubstr("W c.pas was added, and could not be checked out: "));
}

TEST_F(Files, AreMarkedAsBinaryOnRequest) {
  ann.AddNew({"plain.dat"}, "looks like text\n", scc::SCC_FILETYPE_BINARY);
  EXPECT_EQ("application/octet-stream", repository.Property("project/plain.dat", "svn:mime-type"));
}

TEST_F(Files, ThatCannotBeAddedAreReportedAndLeaveNothingBehind) {
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

TEST_F(Files, ThatAColleagueAddedFirstAreNotOverwritten) {
  Join(bob);
  ann.AddNew({"sub/unit1.pas"}, "ann\n");
  bob.Write("sub/unit1.pas", "bob\n");
  EXPECT_EQ(scc::SCC_E_FILEALREADYEXISTS, bob.Add({"sub/unit1.pas"})) << bob.Said();
  EXPECT_EQ("bob\n", bob.Read("sub/unit1.pas"));
  EXPECT_EQ("ann\n", repository.Contents("project/sub/unit1.pas"));
  // Nor is it later: his stays beside hers when he takes it.
  EXPECT_EQ(scc::SCC_E_OPNOTPERFORMED, bob.CheckOut({"sub/unit1.pas"})) << bob.Said();
  EXPECT_EQ(scc::SCC_E_CHECKINCONFLICT, bob.Remove({"sub/unit1.pas"}));
  EXPECT_EQ(kControlled | kOutOfDate, bob.Status("sub/unit1.pas"));
  ASSERT_EQ(scc::SCC_OK, bob.Get({"sub/unit1.pas"}));
  EXPECT_THAT(bob.Said(), HasSubstr("kept as sub/unit1.pas.mine"));
  EXPECT_EQ("ann\n", bob.Read("sub/unit1.pas"));
  EXPECT_EQ("bob\n", bob.Read("sub/unit1.pas.mine"));
}

// A folder that was deleted comes back with the file, and its other files stay as they are.
TEST_F(Files, ThatAColleagueDeletedCanBeAddedAgain) {
  const std::string name = "sub/" + std::string(250, 'u');
  ann.AddNew({name, "sub/other.pas"});
  Join(bob);
  const std::string remove = "svn rm -q -m gone " + repository.Url() + "/project/sub";
  ASSERT_EQ(0, std::system(remove.c_str()));
  bob.EditWithoutCheckOut(name, "bob\n");
  EXPECT_EQ((TStatuses{kControlled | kDeleted | kModified, kControlled | kDeleted}),
            bob.Statuses({name, "sub/other.pas"}));
  EXPECT_EQ(scc::SCC_E_FIXMERGE, bob.Get({name}));
  EXPECT_EQ(scc::SCC_E_FILENOTCONTROLLED, bob.CheckOut({name}));
  ASSERT_EQ(scc::SCC_OK, bob.Add({name})) << bob.Said();
  EXPECT_EQ("bob\n", bob.Read(name));
  EXPECT_EQ("bob\n", repository.Contents("project/" + name));
  EXPECT_EQ("1\n", bob.Read("sub/other.pas"));
  EXPECT_EQ((TStatuses{kControlled, 0}), bob.Statuses({name, "sub/other.pas"}));
}

TEST_F(Files, AreNotRemovedWhileCheckedOutOrWhenTheServerRefuses) {
  ann.AddNew({"a.pas", "b.pas", "c.pas"});
  ann.CheckOut({"a.pas"});
  EXPECT_EQ(scc::SCC_E_FILEISCHECKEDOUT, ann.Remove({"a.pas", "b.pas"}));
  EXPECT_THAT(ann.Said(), HasSubstr("E a.pas: the file is checked out"));
  EXPECT_TRUE(repository.Exists("project/a.pas"));
  EXPECT_FALSE(repository.Exists("project/b.pas"));
  EXPECT_EQ(scc::SCC_E_FILENOTCONTROLLED, ann.Remove({"nonsense.pas"}));

  ann.EditWithoutCheckOut("c.pas", "edited\n");
  repository.WriteHook("pre-commit", "exit 1\n");
  EXPECT_EQ(scc::SCC_E_NOTAUTHORIZED, ann.Remove({"c.pas"}));
  EXPECT_EQ("edited\n", ann.Read("c.pas"));
  EXPECT_EQ(kControlled | kModified, ann.Status("c.pas"));
}

TEST_F(Files, ThatOnlyTheRepositoryHasLeaveNothingBehindWhenRemoved) {
  EXPECT_EQ(scc::SCC_OK, bob.Open(repository.Url(), "project"));
  ann.AddNew({"sub/a.pas", "sub/b.pas", "far/c.pas"});
  ASSERT_EQ(scc::SCC_OK, bob.Remove({"far/c.pas"})) << bob.Said();
  ASSERT_EQ(scc::SCC_OK, bob.Remove({"sub/a.pas", "sub/b.pas"})) << bob.Said();
  EXPECT_FALSE(repository.Exists("project/sub/a.pas"));
  EXPECT_FALSE(bob.Has("sub/a.pas"));
}

TEST_F(Files, OfAFolderAreFetchedAloneOrWithAllBelow) {
  ann.AddNew({"top.pas", "src/a.pas", "src/deep/b.pas"});
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
  for (TDeveloper* developer : {&carl, &bob}) {  // once everything is here, a shallow get takes nothing away
    ASSERT_EQ(scc::SCC_OK, developer->Get({"src"}, scc::SCC_GET_ALL)) << developer->Said();
    EXPECT_TRUE(developer->Has("src/a.pas"));
    EXPECT_TRUE(developer->Has("src/deep/b.pas"));
  }
  EXPECT_EQ(scc::SCC_E_FILENOTCONTROLLED, bob.Get({"nowhere"}, scc::SCC_GET_ALL));
}

TEST_F(Files, OfANewFolderComeInOneGet) {
  std::vector<std::string> names;
  for (int i = 0; i < 20; ++i) names.push_back("unit" + std::to_string(i) + ".pas");
  ann.AddNew(names);
  EXPECT_EQ(scc::SCC_OK, bob.Open(repository.Url(), "project"));
  std::filesystem::remove_all(bob.File(".svn"));  // somebody cleaned up: the get binds the folder again
  ASSERT_EQ(scc::SCC_OK, bob.Get(names)) << bob.Said();
  for (const auto& name : names) EXPECT_TRUE(bob.Has(name)) << name;
}

TEST_F(Files, WithOddNamesPassEveryCommand) {
  for (const std::string name : {"with blanks.pas", "-dash.pas", "at@2.pas", "Größe.pas", "日本.pas",
                                 "per%20cent.pas", "hash#1.pas", "a&b.pas", "--help/-r.pas", "@at/x@.pas"}) {
    SCOPED_TRACE(name);
    ann.AddNew({name});
    ann.Edit(name, "22\n");
    EXPECT_EQ(kOutHere | kModified, ann.Status(name));
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

TEST_F(Files, OfACallAreAddedInOneRevisionWithoutTheRefusedOnes) {
  const svn_revnum_t before = repository.Youngest();
  for (const char* name : {"sub/deep/a.pas", "sub/b.pas", "c.pas"}) ann.Write(name, "1\n");
  EXPECT_EQ(scc::SCC_E_FILENOTEXIST,
            ann.Add({"sub/deep/a.pas", "nothing.pas", "sub/b.pas", "c.pas"}, "three"));
  EXPECT_EQ(before + 1, repository.Youngest());
  EXPECT_EQ("three", repository.Log(before + 1));
  EXPECT_EQ((TStatuses{1, 1, 1}), ann.Statuses({"sub/deep/a.pas", "sub/b.pas", "c.pas"}));

  repository.WriteHook(
      "pre-commit",
      "svnlook changed -t \"$2\" \"$1\" | grep -q 'bad' && { echo 'no bad names' >&2; exit 1; }\nexit 0\n");
  ann.Write("new/bad.pas", "1\n");
  ann.Write("other/good.pas", "1\n");
  EXPECT_EQ(scc::SCC_E_NOTAUTHORIZED, ann.Add({"new/bad.pas", "other/good.pas"}));
  EXPECT_THAT(ann.Said(), HasSubstr("no bad names"));
  EXPECT_FALSE(repository.Exists("project/new"));
  EXPECT_EQ((TStatuses{0, 1}), ann.Statuses({"new/bad.pas", "other/good.pas"}));
  EXPECT_EQ("1\n", ann.Read("new/bad.pas"));
}

}  // namespace kestrel::svnscc
