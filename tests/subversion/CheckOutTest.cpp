// Check-out, check-in and undo, alone and with a colleague.

#include "Developer.h"
#include "subversion/commands/Commands.h"

namespace kestrel::svnscc {

namespace {

/// A project with unit1.pas in it, at Ann's and at Bob's.
struct CheckOut : TTeam {
  CheckOut() {
    ann.AddNew({"unit1.pas"}, "one\ntwo\nthree\n");
    Join(bob);
  }
};

}  // namespace

TEST_F(CheckOut, LocksAndCheckInStoresTheEditAndReleases) {
  ASSERT_EQ(SCC_OK, ann.CheckOut({"unit1.pas"})) << ann.Said();
  EXPECT_EQ("I Locked unit1.pas.\n", ann.Said());
  EXPECT_TRUE(ann.IsWritable("unit1.pas"));
  EXPECT_EQ("ann", repository.LockOwner("project/unit1.pas"));
  EXPECT_EQ(kOutHere, ann.Status("unit1.pas"));

  ann.Write("unit1.pas", "one\n2\nthree\n");
  EXPECT_EQ(kOutHere | kModified, ann.Status("unit1.pas"));
  ASSERT_EQ(SCC_OK, ann.CheckIn({"unit1.pas"}, "two is 2\r\nreally")) << ann.Said();
  EXPECT_EQ("I Sending unit1.pas.\nI Committed revision 3.\n", ann.Said());
  EXPECT_EQ("two is 2\nreally", repository.Log(3));
  EXPECT_EQ("ann", repository.Author(3));
  EXPECT_EQ("one\n2\nthree\n", repository.Contents("project/unit1.pas"));
  EXPECT_EQ(std::nullopt, repository.LockOwner("project/unit1.pas"));
  EXPECT_FALSE(ann.IsWritable("unit1.pas"));
  EXPECT_EQ(kControlled, ann.Status("unit1.pas"));
}

TEST_F(CheckOut, UndoRestoresTheTextAndKeepsACopyOfTheEdits) {
  ann.Edit("unit1.pas", "scribbled\n");
  ASSERT_EQ(SCC_OK, ann.Undo({"unit1.pas"})) << ann.Said();
  EXPECT_THAT(ann.Said(), HasSubstr("I The changes to unit1.pas were kept in unit1.pas.mine.\n"));
  EXPECT_EQ("scribbled\n", ann.Read("unit1.pas.mine"));
  EXPECT_EQ("one\ntwo\nthree\n", ann.Read("unit1.pas"));
  EXPECT_EQ(std::nullopt, repository.LockOwner("project/unit1.pas"));
  EXPECT_FALSE(ann.IsWritable("unit1.pas"));

  ann.CheckOut({"unit1.pas"});
  ann.Delete("unit1.pas");
  ASSERT_EQ(SCC_OK, ann.Undo({"unit1.pas"})) << ann.Said();
  EXPECT_EQ("one\ntwo\nthree\n", ann.Read("unit1.pas"));
  EXPECT_EQ(kControlled, ann.Status("unit1.pas"));
}

TEST_F(CheckOut, RefusesFilesThatAreCheckedOutByOthersOrInAnotherFolder) {
  TDeveloper annAtHome("ann");
  Join(annAtHome);
  ann.CheckOut({"unit1.pas"});
  struct Row {
    TDeveloper& who;
    Long status, ofCheckOut, ofRemove;
    const char* reason;
  };
  for (const auto& row :
       {Row{bob, kOutByOther, SCC_E_FILEOUTEXCLUSIVE, SCC_E_FILEOUTEXCLUSIVE, "ann has it checked out"},
        Row{annAtHome, kOutElsewhere, SCC_E_ALREADYCHECKEDOUT, SCC_E_FILEISCHECKEDOUT,
            "you have it checked out in another folder"}}) {
    SCOPED_TRACE(row.reason);
    EXPECT_EQ(row.status, row.who.Status("unit1.pas"));
    EXPECT_EQ(row.ofCheckOut, row.who.CheckOut({"unit1.pas"}));
    EXPECT_THAT(row.who.Said(), HasSubstr(row.reason));
    EXPECT_FALSE(row.who.IsWritable("unit1.pas"));
    EXPECT_EQ(row.ofRemove, row.who.Remove({"unit1.pas"}));
    EXPECT_EQ(SCC_E_NOTCHECKEDOUT, row.who.CheckIn({"unit1.pas"}));
    EXPECT_EQ(SCC_E_NOTCHECKEDOUT, row.who.Undo({"unit1.pas"}));
  }
}

TEST_F(CheckOut, UpdatesAnOldFileFirstAndMergesLocalEdits) {
  ann.EditAndCheckIn("unit1.pas", "ONE\ntwo\nthree\n");
  EXPECT_EQ(kControlled | kOutOfDate, bob.Status("unit1.pas"));
  bob.EditWithoutCheckOut("unit1.pas", "one\ntwo\nTHREE\n");
  EXPECT_EQ(kControlled | kOutOfDate | kModified, bob.Status("unit1.pas"));
  ASSERT_EQ(SCC_OK, bob.CheckOut({"unit1.pas"})) << bob.Said();
  EXPECT_THAT(bob.Said(), HasSubstr("I Merged changes from the repository into unit1.pas.\n"));
  EXPECT_EQ("ONE\ntwo\nTHREE\n", bob.Read("unit1.pas"));
  EXPECT_TRUE(bob.IsWritable("unit1.pas"));
  EXPECT_EQ(kOutHere | kModified, bob.Status("unit1.pas"));
}

TEST_F(CheckOut, MarksAConflictThatEditingSettles) {
  ann.EditAndCheckIn("unit1.pas", "ann\ntwo\nthree\n");
  bob.EditWithoutCheckOut("unit1.pas", "bob\ntwo\nthree\n");
  ASSERT_EQ(SCC_OK, bob.CheckOut({"unit1.pas"})) << bob.Said();
  EXPECT_THAT(bob.Said(), HasSubstr("W Changes from the repository conflict with yours in unit1.pas"));
  EXPECT_EQ(kOutHere | kModified | kMerged, bob.Status("unit1.pas"));
  EXPECT_EQ(SCC_E_FIXMERGE, bob.CheckIn({"unit1.pas"}));
  EXPECT_EQ(SCC_E_FIXMERGE, bob.Get({"unit1.pas"}));
  EXPECT_THAT(bob.Said(), HasSubstr("E unit1.pas: the file still has conflict marks"));
  EXPECT_EQ("ann\ntwo\nthree\n", repository.Contents("project/unit1.pas"));

  bob.Write("unit1.pas", "ann and bob\ntwo\nthree\n");
  EXPECT_EQ(SCC_OK, bob.CheckIn({"unit1.pas"})) << bob.Said();
  EXPECT_EQ("ann and bob\ntwo\nthree\n", repository.Contents("project/unit1.pas"));
  EXPECT_EQ(kControlled, bob.Status("unit1.pas"));
}

// Nobody has a lock here, so that clients do not offer undo.
TEST_F(CheckOut, AsksAboutAConflictThatCannotBeMerged) {
  ann.AddNew({"kept.dat", "both.dat"}, "0\n", SCC_FILETYPE_BINARY | SCC_KEEP_CHECKEDOUT);
  ann.AddNew({"gone.pas"}, "0\n");
  bob.GetEverything();
  const NameList names{"kept.dat", "gone.pas", "both.dat"};
  for (const auto& name : names) bob.EditWithoutCheckOut(name, "bob\n");
  for (const auto* name : {"kept.dat", "both.dat"}) ann.Write(name, "ann\n");
  ASSERT_EQ(SCC_OK, ann.CheckIn({"kept.dat", "both.dat"}));
  ASSERT_EQ(SCC_OK, ann.Remove({"gone.pas"}));
  EXPECT_EQ(SCC_E_FIXMERGE, bob.Get(names));
  EXPECT_EQ(SCC_E_FIXMERGE, bob.Get(names)) << "nothing can be asked here";
  EXPECT_THAT(bob.Said(), HasSubstr("Get Latest Version or Undo Check Out takes the repository's"));

  const std::string lock = "svn lock -q --non-interactive --no-auth-cache --username bob '";
  ASSERT_EQ(0, std::system((lock + bob.File("both.dat") + "'").c_str()));
  EXPECT_EQ(SCC_E_FIXMERGE, bob.CheckIn({"both.dat"})) << "no marks, and still not settled";
  EXPECT_EQ("ann\n", repository.Contents("project/both.dat"));

  bob.Close();
  {
    TAnsweredQuestions questions;
    TDirectSession session(repository, bob);
    questions.Answer = false;
    EXPECT_EQ(SCC_E_FIXMERGE, session.Run(GetFiles, {"kept.dat", "gone.pas"}, CommandOptions{}));
    EXPECT_THAT(questions.Asked, AllOf(HasSubstr("kept.dat"), HasSubstr("gone.pas")));
    for (const auto& name : names) EXPECT_EQ("bob\n", bob.Read(name));
    questions.Answer = true;
    EXPECT_EQ(SCC_OK, session.Run(GetFiles, {"kept.dat", "gone.pas"}, CommandOptions{}));
    EXPECT_EQ(SCC_OK, session.Run(svnscc::CheckOut, {"both.dat"}, "", CommandOptions{}));
  }
  for (const auto& name : names) EXPECT_EQ("bob\n", bob.Read(name + ".mine"));
  for (const auto* name : {"kept.dat", "both.dat"}) EXPECT_EQ("ann\n", bob.Read(name));
  EXPECT_FALSE(bob.Has("gone.pas"));
  bob.Open(repository.Url(), "project");
  EXPECT_EQ((TStatuses{kControlled, 0, kOutHere}), bob.Statuses(names));
}

TEST_F(CheckOut, ReportsALostLockAndWhoTookIt) {
  ann.CheckOut({"unit1.pas"});
  repository.BreakLock("project/unit1.pas");
  EXPECT_EQ(SCC_OK, ann.CheckIn({"unit1.pas"}, "", SCC_KEEP_CHECKEDOUT)) << "nothing to send";
  EXPECT_EQ("W The lock on unit1.pas was taken away in the repository.\n", ann.Said());
  ann.Write("unit1.pas", "mine\n");
  EXPECT_EQ(kControlled | kModified, ann.Status("unit1.pas"));
  bob.CheckOut({"unit1.pas"});
  EXPECT_EQ(kOutByOther | kModified, ann.Status("unit1.pas"));
  EXPECT_NE(SCC_OK, ann.CheckIn({"unit1.pas"}));
  EXPECT_THAT(ann.Said(), EndsWith("\nE unit1.pas: bob has it checked out\n"));

  bob.Write("unit1.pas", "his\n");
  bob.CheckIn({"unit1.pas"});
  EXPECT_EQ(SCC_E_CHECKINCONFLICT, ann.CheckIn({"unit1.pas"})) << ann.Said();
  EXPECT_EQ("mine\n", ann.Read("unit1.pas"));
  EXPECT_EQ("his\n", repository.Contents("project/unit1.pas"));

  ann.AddNew({"unit2.pas"}, "1\n", SCC_KEEP_CHECKEDOUT);
  repository.BreakLock("project/unit2.pas");
  ASSERT_EQ(SCC_OK, bob.CheckOut({"unit2.pas"})) << bob.Said();
  ann.GetEverything();
  EXPECT_THAT(ann.Said(), HasSubstr("unit2.pas was taken away in the repository: bob has it now.\n"));
}

// Clients name a unit with its form, whichever of them is out.
TEST_F(CheckOut, HandlesTheOtherFilesOfABatchWithABadOne) {
  ann.AddNew({"unit2.pas", "unit3.pas"});
  EXPECT_EQ(SCC_E_FILENOTCONTROLLED, ann.CheckOut({"unit1.pas", "nonsense.pas", "unit1.pas", "unit2.pas"}));
  EXPECT_THAT(ann.Said(), HasSubstr("E nonsense.pas: the file is not under source control\n"));
  EXPECT_EQ((TStatuses{kOutHere, kOutHere}), ann.Statuses({"unit1.pas", "unit2.pas"}));
  EXPECT_EQ(SCC_OK, ann.CheckOut({"unit1.pas"}));
  EXPECT_EQ("I unit1.pas is checked out already.\n", ann.Said());

  ann.Write("unit1.pas", "changed\n");
  ann.Delete("unit2.pas");
  EXPECT_EQ(SCC_E_FILENOTEXIST, ann.CheckIn({"unit1.pas", "unit2.pas", "unit3.pas"}));
  EXPECT_THAT(ann.Said(), HasSubstr("I unit3.pas is not checked out here: it was left as it is.\n"));
  EXPECT_EQ("changed\n", repository.Contents("project/unit1.pas"));
  EXPECT_EQ(kControlled, ann.Status("unit1.pas"));
  EXPECT_EQ(SCC_E_NOTCHECKEDOUT, ann.CheckIn({"unit1.pas", "unit3.pas"}));
  EXPECT_EQ(SCC_OK, ann.Undo({"unit3.pas", "unit2.pas"}));
  EXPECT_EQ(SCC_E_NOTCHECKEDOUT, ann.Undo({"unit3.pas", "unit2.pas"}));
}

// The server counts such a file as old, and there is nothing to fetch.
TEST_F(CheckOut, ChecksInAFileThatWasMovedAwayAndBack) {
  ann.Edit("unit1.pas", "mine\n");
  repository.BreakLock("project/unit1.pas");
  ASSERT_EQ(SCC_OK, bob.Rename("unit1.pas", "away.pas")) << bob.Said();
  ASSERT_EQ(SCC_OK, bob.Rename("away.pas", "unit1.pas")) << bob.Said();
  EXPECT_EQ(SCC_OK, ann.CheckIn({"unit1.pas"})) << ann.Said();
  EXPECT_EQ("mine\n", repository.Contents("project/unit1.pas"));
}

TEST_F(CheckOut, ReportsARefusalByTheServersHookAndKeepsTheEdits) {
  repository.WriteHook("pre-commit", "echo 'No ticket number.' >&2\nexit 1\n");
  ann.Edit("unit1.pas", "mine\n");
  EXPECT_EQ(SCC_E_NOTAUTHORIZED, ann.CheckIn({"unit1.pas"}));
  EXPECT_THAT(ann.Said(), HasSubstr("No ticket number."));
  EXPECT_EQ("mine\n", ann.Read("unit1.pas"));
  EXPECT_EQ(kOutHere | kModified, ann.Status("unit1.pas"));
}

TEST_F(CheckOut, QuickDifferencesNeedNoServer) {
  ann.Write("new.pas", "n\n");
  ann.CheckOut({"unit1.pas"});
  repository.Hide();
  for (const Long flags : {SCC_DIFF_QD_CONTENTS, SCC_DIFF_QD_CHECKSUM, SCC_DIFF_QD_TIME}) {
    SCOPED_TRACE(flags);
    EXPECT_EQ(SCC_OK, ann.Diff("unit1.pas", flags));
    EXPECT_EQ(SCC_E_FILENOTCONTROLLED, ann.Diff("new.pas", flags));
    EXPECT_EQ(SCC_E_FILENOTEXIST, ann.Diff("nothing.pas", flags));
  }
  ann.Write("unit1.pas", "one\nTWO\nthree\n");
  EXPECT_EQ(SCC_I_FILEDIFFERS, ann.Diff("unit1.pas"));
  ann.Delete("unit1.pas");
  EXPECT_EQ(SCC_E_FILENOTEXIST, ann.Diff("unit1.pas"));
  EXPECT_EQ("", ann.Said());
}

}  // namespace kestrel::svnscc
