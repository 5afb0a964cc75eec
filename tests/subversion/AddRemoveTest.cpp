// Adding, removing, getting and renaming files.
#include "Developer.h"

namespace kestrel::svnscc {

namespace {

using Files = TTeam;

struct Rename : TTeam {
  Rename() {
    ann.AddNew({"old.pas"}, "1\n");
    ann.AddNew({"other.pas"}, "other\n");
  }
  void OnDisk(const std::string& from, const std::string& to) {
    fs::create_directories(fs::path(ann.File(to)).parent_path());
    fs::rename(ann.File(from), ann.File(to));
  }
};

}  // namespace

TEST_F(Files, AreAddedRemovedAndAddedAgain) {
  const std::string unit = "src/deep/unit1.pas";
  ann.Write(unit, "1\n");
  ASSERT_EQ(SCC_OK, ann.Add({unit}, "new unit")) << ann.Said();
  EXPECT_EQ("new unit", repository.Log(repository.Youngest()));
  EXPECT_EQ("*", repository.Property("project/" + unit, "svn:needs-lock"));
  EXPECT_FALSE(ann.IsWritable(unit));
  EXPECT_EQ(kControlled, ann.Status(unit));
  EXPECT_EQ(SCC_OK, ann.Add({unit})) << "a form is named twice when it goes with its unit";
  EXPECT_EQ("I src/deep/unit1.pas was added already.\n", ann.Said());

  Join(bob);
  ASSERT_EQ(SCC_OK, ann.Remove({unit}, "not needed")) << ann.Said();
  EXPECT_EQ("not needed", repository.Log(repository.Youngest()));
  EXPECT_FALSE(repository.Exists("project/" + unit));
  EXPECT_EQ("1\n", ann.Read(unit));
  EXPECT_TRUE(ann.IsWritable(unit));
  EXPECT_EQ(0, ann.Status(unit));

  ann.AddNew({unit}, "again\n");
  ASSERT_EQ(SCC_OK, bob.Get({unit})) << bob.Said();
  EXPECT_EQ("again\n", bob.Read(unit));
}

TEST_F(Files, AreAddedAsTheFlagsAsk) {
  // One flag word for both files: the second would be read behind it.
  ann.AddNew({"a.pas", "b.pas"}, "1\n", SCC_KEEP_CHECKEDOUT);
  EXPECT_EQ((TStatuses{kOutHere, kOutHere}), ann.Statuses({"a.pas", "b.pas"}));
  EXPECT_TRUE(ann.IsWritable("b.pas"));
  ann.AddNew({"plain.dat"}, "looks like text\n", SCC_FILETYPE_BINARY);
  EXPECT_EQ("application/octet-stream", repository.Property("project/plain.dat", "svn:mime-type"));
  repository.WriteHook("pre-lock", "exit 1\n");
  ann.AddNew({"c.pas"}, "1\n", SCC_KEEP_CHECKEDOUT);
  EXPECT_THAT(ann.Said(), HasSubstr("W c.pas was added, and could not be checked out: "));
}

TEST_F(Files, ThatCannotBeAddedAreReportedAndLeaveNothingBehind) {
  EXPECT_EQ(SCC_E_FILENOTEXIST, ann.Add({"missing.pas"}));
  EXPECT_EQ("E missing.pas: there is no such file on this computer\n", ann.Said());
  fs::create_directory(ann.File("folder"));
  EXPECT_EQ(SCC_E_TYPENOTSUPPORTED, ann.Add({"folder"}));
  EXPECT_EQ(SCC_E_FILENOTCONTROLLED, ann.Add({"../outside.pas"}));

  repository.WriteHook("pre-commit", "exit 1\n");
  ann.Write("new/unit1.pas", "1\n");
  EXPECT_EQ(SCC_E_NOTAUTHORIZED, ann.Add({"new/unit1.pas"}));
  EXPECT_THAT(ann.Said(), Not(HasSubstr("Undid")));
  EXPECT_EQ(0, ann.Status("new/unit1.pas"));
  repository.WriteHook("pre-commit", "exit 0\n");
  EXPECT_EQ(SCC_OK, ann.Add({"new/unit1.pas"})) << ann.Said();
}

TEST_F(Files, ThatAColleagueAddedFirstAreNotOverwritten) {
  Join(bob);
  const std::string unit = "sub/unit1.pas";
  ann.AddNew({unit}, "ann\n");
  bob.Write(unit, "bob\n");
  EXPECT_EQ(SCC_E_FILEALREADYEXISTS, bob.Add({unit})) << bob.Said();
  EXPECT_EQ("bob\n", bob.Read(unit));
  EXPECT_EQ("ann\n", repository.Contents("project/" + unit));
  // Nor is it later: his stays beside hers when he takes it.
  EXPECT_EQ(SCC_E_OPNOTPERFORMED, bob.CheckOut({unit})) << bob.Said();
  EXPECT_EQ(SCC_E_CHECKINCONFLICT, bob.Remove({unit}));
  EXPECT_EQ(kControlled | kOutOfDate, bob.Status(unit));
  ASSERT_EQ(SCC_OK, bob.Get({unit}));
  EXPECT_THAT(bob.Said(), HasSubstr("kept as sub/unit1.pas.mine"));
  EXPECT_EQ("ann\n", bob.Read(unit));
  EXPECT_EQ("bob\n", bob.Read(unit + ".mine"));
}

// A folder that was deleted comes back with the file, and its other files stay as they are.
TEST_F(Files, ThatAColleagueDeletedCanBeAddedAgain) {
  const std::string name = "sub/" + std::string(250, 'u');
  const NameList both{name, "sub/other.pas"};
  ann.AddNew(both);
  Join(bob);
  ASSERT_EQ(0, std::system(("svn rm -q -m gone " + repository.Url() + "/project/sub").c_str()));
  bob.EditWithoutCheckOut(name, "bob\n");
  EXPECT_EQ((TStatuses{kControlled | kDeleted | kModified, kControlled | kDeleted}), bob.Statuses(both));
  EXPECT_EQ(SCC_E_FIXMERGE, bob.Get({name}));
  EXPECT_EQ(SCC_E_FILENOTCONTROLLED, bob.CheckOut({name}));
  ASSERT_EQ(SCC_OK, bob.Add({name})) << bob.Said();
  EXPECT_EQ("bob\n", bob.Read(name));
  EXPECT_EQ("bob\n", repository.Contents("project/" + name));
  EXPECT_EQ("1\n", bob.Read("sub/other.pas"));
  EXPECT_EQ((TStatuses{kControlled, 0}), bob.Statuses(both));
}

TEST_F(Files, AreNotRemovedWhileCheckedOutOrWhenTheServerRefuses) {
  ann.AddNew({"a.pas", "b.pas", "c.pas"});
  ann.CheckOut({"a.pas"});
  EXPECT_EQ(SCC_E_FILEISCHECKEDOUT, ann.Remove({"a.pas", "b.pas"}));
  EXPECT_THAT(ann.Said(), HasSubstr("E a.pas: the file is checked out"));
  EXPECT_TRUE(repository.Exists("project/a.pas"));
  EXPECT_FALSE(repository.Exists("project/b.pas"));
  EXPECT_EQ(SCC_E_FILENOTCONTROLLED, ann.Remove({"nonsense.pas"}));

  ann.EditWithoutCheckOut("c.pas", "edited\n");
  repository.WriteHook("pre-commit", "exit 1\n");
  EXPECT_EQ(SCC_E_NOTAUTHORIZED, ann.Remove({"c.pas"}));
  EXPECT_EQ("edited\n", ann.Read("c.pas"));
  EXPECT_EQ(kControlled | kModified, ann.Status("c.pas"));
}

TEST_F(Files, OfAFolderAreFetchedAloneOrWithAllBelow) {
  ann.AddNew({"top.pas", "src/a.pas", "src/deep/b.pas"});
  EXPECT_EQ(SCC_OK, bob.Open(repository.Url(), "project"));
  fs::remove_all(bob.File(".svn"));  // somebody cleaned up: the get binds the folder again
  ASSERT_EQ(SCC_OK, bob.Get({"src"}, SCC_GET_ALL)) << bob.Said();
  EXPECT_TRUE(bob.Has("src/a.pas"));
  EXPECT_FALSE(bob.Has("src/deep/b.pas") || bob.Has("top.pas"));
  ASSERT_EQ(SCC_OK, bob.GetEverything());
  // What was fetched by itself below a folder stays when the folder's own files are fetched.
  TDeveloper carl("carl");
  EXPECT_EQ(SCC_OK, carl.Open(repository.Url(), "project"));
  ASSERT_EQ(SCC_OK, carl.Get({"src/deep/b.pas"}));
  for (TDeveloper* developer : {&carl, &bob}) {  // once everything is here, a shallow get takes nothing away
    ASSERT_EQ(SCC_OK, developer->Get({"src"}, SCC_GET_ALL)) << developer->Said();
    EXPECT_TRUE(developer->Has("src/a.pas") && developer->Has("src/deep/b.pas"));
  }
  EXPECT_EQ(SCC_E_FILENOTCONTROLLED, bob.Get({"nowhere"}, SCC_GET_ALL));
}

TEST_F(Files, WithOddNamesPassEveryCommand) {
  for (const std::string name : {"with blanks.pas", "-dash.pas", "at@2.pas", "Größe.pas", "日本.pas",
                                 "per%20cent.pas", "hash#1.pas", "a&b.pas", "--help/-r.pas", "@at/x@.pas"}) {
    SCOPED_TRACE(name);
    ann.AddNew({name});
    ann.Edit(name, "22\n");
    EXPECT_EQ(kOutHere | kModified, ann.Status(name));
    EXPECT_EQ(SCC_I_FILEDIFFERS, ann.Diff(name));
    ASSERT_EQ(SCC_OK, ann.CheckIn({name})) << ann.Said();
    EXPECT_EQ("22\n", repository.Contents("project/" + name));
    ann.Delete(name);
    ASSERT_EQ(SCC_OK, ann.Get({name})) << ann.Said();
    EXPECT_EQ("22\n", ann.Read(name));
    ASSERT_EQ(SCC_OK, ann.CheckOut({name}));
    ASSERT_EQ(SCC_OK, ann.Undo({name})) << ann.Said();
    ASSERT_EQ(SCC_OK, ann.Remove({name})) << ann.Said();
    EXPECT_EQ(0, ann.Status(name));
  }
}

TEST_F(Files, OfACallAreAddedInOneRevisionWithoutTheRefusedOnes) {
  const svn_revnum_t before = repository.Youngest();
  const NameList names{"sub/deep/a.pas", "sub/b.pas", "c.pas"};
  for (const auto& name : names) ann.Write(name, "1\n");
  EXPECT_EQ(SCC_E_FILENOTEXIST, ann.Add({names[0], "nothing.pas", names[1], names[2]}, "three"));
  EXPECT_EQ(before + 1, repository.Youngest());
  EXPECT_EQ("three", repository.Log(before + 1));
  EXPECT_EQ((TStatuses{1, 1, 1}), ann.Statuses(names));

  repository.WriteHook(
      "pre-commit",
      "svnlook changed -t \"$2\" \"$1\" | grep -q 'bad' && { echo 'no bad names' >&2; exit 1; }\nexit 0\n");
  for (const auto* name : {"new/bad.pas", "other/good.pas"}) ann.Write(name, "1\n");
  EXPECT_EQ(SCC_E_NOTAUTHORIZED, ann.Add({"new/bad.pas", "other/good.pas"}));
  EXPECT_THAT(ann.Said(), HasSubstr("no bad names"));
  EXPECT_FALSE(repository.Exists("project/new"));
  EXPECT_EQ((TStatuses{0, 1}), ann.Statuses({"new/bad.pas", "other/good.pas"}));
  EXPECT_EQ("1\n", ann.Read("new/bad.pas"));
}

// The client renames before or after, in the same folder or into a new one, with or without edits.
TEST_F(Rename, LeavesTheFileUnderTheNameItHas) {
  for (const bool clientFirst : {true, false})
    for (const std::string target : {"new.pas", "sub/deep/new.pas"})
      for (const bool edited : {true, false}) {
        const std::string what =
            target + (clientFirst ? " client first" : "") + (edited ? " edited\n" : "\n");
        SCOPED_TRACE(what);
        if (edited) ann.Edit("old.pas", what);
        const std::string stored = repository.Contents("project/old.pas");
        const std::string local = ann.Read("old.pas");
        if (clientFirst) OnDisk("old.pas", target);
        ASSERT_EQ(SCC_OK, ann.Rename("old.pas", target)) << ann.Said();
        EXPECT_EQ(clientFirst, ann.Has(target));
        EXPECT_EQ(!clientFirst, ann.Has("old.pas"));
        if (!clientFirst) OnDisk("old.pas", target);
        EXPECT_EQ(local, ann.Read(target));
        EXPECT_EQ(edited, ann.IsWritable(target));
        EXPECT_EQ(stored, repository.Contents("project/" + target)) << "edits are not checked in";
        EXPECT_FALSE(repository.Exists("project/old.pas"));
        EXPECT_EQ((TStatuses{0, edited ? kOutHere | kModified : kControlled}),
                  ann.Statuses({"old.pas", target}));
        if (edited) {
          EXPECT_EQ(SCC_OK, ann.CheckIn({target})) << ann.Said();
        }
        ASSERT_EQ(SCC_OK, ann.Rename(target, "old.pas")) << ann.Said();
        OnDisk(target, "old.pas");
      }
}

TEST_F(Rename, WorksWithNothingAndWithBothOnDisk) {
  ann.Write("new.pas", "someone's\n");
  ASSERT_EQ(SCC_OK, ann.Rename("old.pas", "new.pas")) << ann.Said();
  EXPECT_EQ("1\n", ann.Read("old.pas"));
  EXPECT_EQ("someone's\n", ann.Read("new.pas"));
  EXPECT_EQ("1\n", repository.Contents("project/new.pas"));
  ann.Delete("other.pas");
  ASSERT_EQ(SCC_OK, ann.Rename("other.pas", "another.pas")) << ann.Said();
  EXPECT_FALSE(ann.Has("other.pas") || ann.Has("another.pas"));
  EXPECT_EQ(SCC_OK, ann.Get({"another.pas"}));
  EXPECT_EQ("other\n", ann.Read("another.pas"));
}

TEST_F(Rename, ChangesNothingWhenRefused) {
  Join(bob);
  bob.CheckOut({"old.pas"});
  ann.Write("new.pas", "not added\n");
  EXPECT_EQ(SCC_E_FILEOUTEXCLUSIVE, ann.Rename("old.pas", "x.pas"));
  bob.Write("old.pas", "2\n");
  bob.CheckIn({"old.pas"});
  EXPECT_EQ(SCC_E_OPNOTPERFORMED, ann.Rename("old.pas", "x.pas"));
  EXPECT_THAT(ann.Said(), HasSubstr("not the newest"));
  ann.Get({"old.pas"});
  EXPECT_EQ(SCC_E_FILEALREADYEXISTS, ann.Rename("old.pas", "other.pas"));
  EXPECT_EQ(SCC_E_FILENOTCONTROLLED, ann.Rename("new.pas", "x.pas"));
  EXPECT_EQ(SCC_E_OPNOTPERFORMED, ann.Rename("old.pas", "../x.pas"));
  repository.WriteHook("pre-commit", "echo 'not today' >&2; exit 1\n");
  ann.Edit("old.pas", "edited\n");
  EXPECT_EQ(SCC_E_NOTAUTHORIZED, ann.Rename("old.pas", "sub/x.pas"));
  EXPECT_THAT(ann.Said(), HasSubstr("not today"));
  EXPECT_EQ("edited\n", ann.Read("old.pas"));
  EXPECT_EQ((TStatuses{kOutHere | kModified, 0, 0}), ann.Statuses({"old.pas", "sub/x.pas", "new.pas"}));
  EXPECT_EQ("not added\n", ann.Read("new.pas"));
}

}  // namespace kestrel::svnscc
