// Stories that a macro plays on the real workbench with a real package in it.

#include <csignal>

#include "MacroTest.h"
#include "support/Testing.h"
#include "system/System.h"

namespace kestrel::workbench {

namespace {

TEST(Workbench, LoadsAndUnloadsAPackageInOrder) {
  TMacroTest test;
  EXPECT_EQ(test.Play("expect-enabled \"Crew|Beep\"\nmenu Crew|Beep\nmenu Crew|More|Deep\nquit\n"), 0)
      << test.Output();
  EXPECT_THAT(test.Log(),
              ElementsAre("initialize", "register, no main form", "main form created", "deep clicked",
                          "menu gone", "wizard gone", "notifier destroyed", "finalize", "unloaded"));
}

TEST(Workbench, TellsPackagesWhatOpensSwitchesAndCloses) {
  TMacroTest test;
  EXPECT_EQ(test.Play("open Fleet.qvxgroup\n"
                      "open Main.pas\n"
                      "open Main.kfm\n"
                      "activate Raft.qvxproj\n"
                      "close Main.pas\n"
                      "activate Boat.qvxproj\n"
                      "open sub/Deck.pas\n"
                      "menu \"File|Close All\"\n"
                      "expect-no-text Fleet.qvxgroup\n"
                      "open Raft.qvxproj\n"
                      "quit\n"),
            0)
      << test.Output();
  auto log = test.Log();
  log.erase(log.begin(), log.begin() + 3);
  log.resize(14);
  EXPECT_THAT(
      log,
      ElementsAre("1 Fleet.qvxgroup open, active Boat.qvxproj", "1 Boat.qvxproj open, active Boat.qvxproj",
                  "1 Raft.qvxproj open, active Boat.qvxproj", "1 Main.pas open, active Boat.qvxproj",
                  "9 Raft.qvxproj open, active Raft.qvxproj", "2 Main.pas open, active Raft.qvxproj",
                  "9 Boat.qvxproj open, active Boat.qvxproj", "1 Deck.pas open, active Boat.qvxproj",
                  "2 Deck.pas open, active Boat.qvxproj", "2 Boat.qvxproj open, active Boat.qvxproj",
                  "2 Raft.qvxproj open, active none", "2 Fleet.qvxgroup open, active none",
                  "1 Raft.qvxproj open, active Raft.qvxproj", "2 Raft.qvxproj open, active Raft.qvxproj"));
}

TEST(Workbench, RefreshesAPackagesMenuEachTimeItOpens) {
  TMacroTest test;
  EXPECT_EQ(test.Play("expect-disabled \"Crew|Check Out...\"\n"
                      "menu \"Crew|Hidden Thing\"\n"
                      "open Boat.qvxproj\n"
                      "expect-enabled \"Crew|Check Out...\"\n"
                      "expect-hidden \"Crew|Hidden Thing\"\n"
                      "menu \"File|Close All\"\n"
                      "expect-disabled \"Crew|Check Out...\"\n"
                      "expect-enabled \"Crew|Hidden Thing\"\n"
                      "quit\n"),
            0)
      << test.Output();
  EXPECT_THAT(test.Log(), Contains("hidden clicked"));
}

TEST(Workbench, OffersAPackagesCommandsForAFileAndInTheCommandList) {
  TMacroTest test;
  EXPECT_EQ(test.Play("open Boat.qvxproj\n"
                      "expect-file-disabled Boat.qvxproj Crew|Hail\n"
                      "expect-file-enabled Main.pas Crew|Hail\n"
                      "file-menu sub/Deck.pas Crew|Hail\n"
                      "file-menu Main.pas Crew|Sink\n"
                      "expect-message \"will not sink\"\n"
                      "menu Tools|Commands...\n"
                      "expect Commands\n"
                      "type Search out\n"
                      "select \"Crew: Check Out...\"\n"
                      "press Run\n"
                      "expect \"Crew Files\"\n"
                      "press Cancel\n"
                      "expect-no-dialog\n"
                      "quit\n"),
            0)
      << test.Output();
  EXPECT_THAT(test.Log(), IsSupersetOf({"hail Deck.pas", "cancelled, comment "}));
}

TEST(Workbench, OpensMenusByMouseAndKeyboard) {
  TMacroTest test;
  EXPECT_EQ(test.Play("open Boat.qvxproj\n"
                      "point menu Crew\n"
                      "click left\n"
                      "expect-menu\n"
                      "point menu \"Crew|Check Out...\"\n"
                      "click left\n"
                      "expect \"Crew Files\"\n"
                      "expect-no-menu\n"
                      "key Escape\n"
                      "expect-no-dialog\n"
                      "key F10\n"
                      "expect-menu\n"
                      "key Escape\n"
                      "expect-no-menu\n"
                      "point row sub/Deck.pas\n"
                      "click right\n"
                      "expect-menu\n"
                      "key Up\n"
                      "key Right\n"
                      "key Return\n"
                      "expect-no-menu\n"
                      "quit\n"),
            0)
      << test.Output();
  EXPECT_THAT(test.Log(), IsSupersetOf({"cancelled, comment ", "hail Deck.pas"}));
}

TEST(Workbench, ShowsTheEditorsOwnMenuAndEndsWithAMenuOpen) {
  TMacroTest test;
  const std::string menus =
      "open Boat.qvxproj\n"
      "open Main.pas\n"
      "point editor Main.pas\n"
      "click right\n"
      "expect-menu\n"
      "expect-text \"Ln 3, Col 1\"\n"
      "key Escape\n"
      "expect-no-menu\n"
      "click right\n"
      "expect-menu\n";
  EXPECT_EQ(test.Play(menus + "key Escape\nexpect-no-menu\nquit\n"), 0) << test.Output();
  for (const auto* open : {"", "key Escape\nexpect-no-menu\nkey F10\nexpect-menu\n"})
    EXPECT_EQ(test.Play(menus + open + "run \"kill -TERM $PPID\"\nexpect-no-menu\nwait 60000\n"),
              128 + SIGTERM)
        << test.Output();
  EXPECT_EQ(test.Log().back(), "unloaded");
}

TEST(Workbench, FindsAndReplacesInOneDialogThatEndsWithTheProgram) {
  TMacroTest test;
  EXPECT_EQ(test.Play("open Main.pas\n"
                      "key Ctrl+F\n"
                      "expect Find\n"
                      "key E\n"
                      "key N\n"
                      "expect-button Find...\n"
                      "key Return\n"
                      "expect-text \"Ln 2, Col 1\"\n"
                      "menu Search|Replace...\n"
                      "expect Replace\n"
                      "type \"Replace with\" EN\n"
                      "press \"Replace all\"\n"
                      "expect-editor Main.pas ENd.\n"
                      "key Escape\n"
                      "expect-no-text \"Replace with\"\n"
                      "save\n"
                      "menu Search|Find...\n"
                      "expect Find\n"
                      "menu File|Exit\n"
                      "wait 60000\n"),
            0)
      << test.Output();
  EXPECT_THAT(test.Output(), Not(HasSubstr("wincmn"))) << "the toolkit complains";
}

TEST(Workbench, ShowsABoxThatComesUpWhileAMenuOpensAndThenTheMenu) {
  TMacroTest test;
  const TEnvironmentVariable box("CREW_BOX", "1");
  const struct {
    std::string Open, Answer;
  } rows[] = {{"point menu Crew\nclick left\n", "key Return\n"},
              {"key F10\nexpect-menu\nkey Left\nkey Left\n", "key KP_Enter\n"},
              {"key Alt+C\n", "key Space\n"}};
  for (const auto& [open, answer] : rows)
    EXPECT_EQ(test.Play("open Boat.qvxproj\n" + open + "expect \"Crew Box\"\n" + answer +
                        "expect-no-dialog\n"
                        "expect-menu\n"
                        "key F\n"
                        "expect-message \"the crew is asleep\"\n"
                        "quit\n"),
              0)
        << test.Output();
}

TEST(Workbench, StaysOpenAroundAPackagesOwnWindowAndTheMacroEnds) {
  TMacroTest test;
  EXPECT_EQ(test.Play("open Boat.qvxproj\n"
                      "menu Crew|Watch\n"
                      "menu File|Exit\n"
                      "expect-message \"cannot be closed while a command is running\"\n"
                      "limit 100\n"
                      "open Nothing.pas\n"),
            1)
      << test.Output();
}

TEST(Workbench, SurvivesPackagesThatThrow) {
  TMacroTest test;
  EXPECT_EQ(test.Play("open Boat.qvxproj\n"
                      "open Faulty.pas\n"
                      "expect-message \"faulty notifier\"\n"
                      "menu Crew|Fail\n"
                      "expect-message \"the crew is asleep\"\n"
                      "menu Crew|Abort\n"
                      "menu \"Crew|Check Out...\"\n"
                      "press Mutiny\n"
                      "expect-message \"the crew mutinies\"\n"
                      "press Cancel\n"
                      "expect-no-dialog\n"
                      "menu Crew|Help\n"
                      "expect-text \"There is no help for HC_Crew.\"\n"
                      "press OK\n"
                      "quit\n"),
            0)
      << test.Output();
  EXPECT_THAT(test.Output(), Not(HasSubstr("nobody hears this")));
}

TEST(Workbench, ChecksOutThroughADialogAndShowsTheFileWritable) {
  TMacroTest test;
  EXPECT_EQ(test.Play("open Boat.qvxproj\n"
                      "open sub/Deck.pas\n"
                      "expect-read-only sub/Deck.pas\n"
                      "expect-text Read-only\n"
                      "menu \"Crew|Check Out...\"\n"
                      "expect \"Crew Files\"\n"
                      "tick Main.pas\n"
                      "tick Deck.pas\n"
                      "expect-ticked Main.pas\n"
                      "untick Main.pas\n"
                      "expect-unticked Main.pas\n"
                      "type Comment \"a comment that is too long\"\n"
                      "key Return\n"
                      "expect-no-dialog\n"
                      "expect-writable sub/Deck.pas\n"
                      "edit sub/Deck.pas \"// aboard\"\n"
                      "key Ctrl+S\n"
                      "expect-file sub/Deck.pas \"// aboard\"\n"
                      "menu \"Crew|Check Out...\"\n"
                      "expect \"Crew Files\"\n"
                      "key Escape\n"
                      "expect-no-dialog\n"
                      "quit\n"),
            0)
      << test.Output();
  EXPECT_THAT(test.Log(), IsSupersetOf({"accepted, comment a comment that is to", "out Deck.pas",
                                        "cancelled, comment "}));
  EXPECT_THAT(test.Log(), Not(Contains("out Main.pas")));
}

TEST(Workbench, NoticesFilesThatChangedOnDisk) {
  TMacroTest test;
  EXPECT_EQ(test.Play("open Boat.qvxproj\n"
                      "open Main.pas\n"
                      "write-file Main.pas \"unit Fresh;\"\n"
                      "refocus\n"
                      "expect-editor Main.pas \"unit Fresh;\"\n"
                      "expect-message \"was reloaded\"\n"
                      "edit Main.pas \"// mine\"\n"
                      "write-file Main.pas \"unit Theirs;\"\n"
                      "refocus\n"
                      "expect-text \"has changed on disk\"\n"
                      "press \"Keep Mine\"\n"
                      "expect-editor Main.pas \"// mine\"\n"
                      "write-file Main.pas \"unit Again;\"\n"
                      "refocus\n"
                      "press Reload\n"
                      "expect-editor Main.pas \"unit Again;\"\n"
                      "set-read-only Main.pas yes\n"
                      "refocus\n"
                      "expect-read-only Main.pas\n"
                      "quit\n"),
            0)
      << test.Output();
}

TEST(Workbench, AsksBeforeUnsavedChangesAreLost) {
  TMacroTest test;
  EXPECT_EQ(test.Play("open Boat.qvxproj\n"
                      "edit Main.pas \"// one\"\n"
                      "menu File|Exit\n"
                      "expect-text \"Save changes to Main.pas?\"\n"
                      "press Cancel\n"
                      "expect-editor Main.pas \"// one\"\n"
                      "menu File|Close\n"
                      "press \"Don't Save\"\n"
                      "expect-no-dialog\n"
                      "edit Main.pas \"// two\"\n"
                      "menu File|Exit\n"
                      "press Save\n"
                      "wait 5000\n"),
            0)
      << test.Output();
  const std::string text = ReadWholeFile(test.Folder() / "Main.pas");
  EXPECT_THAT(text, HasSubstr("// two"));
  EXPECT_THAT(text, Not(HasSubstr("// one")));
}

TEST(Workbench, SavesTheBytesThatItDoesNotUnderstand) {
  TMacroTest test;
  using namespace std::string_literals;
  const std::string bytes = "unit Old;\r\n{ na\xEFve \x80 \0 \xC3\xA9 }\rend.\n\n"s;
  test.Folder().Write("Main.pas", bytes);
  EXPECT_EQ(test.Play("edit Main.pas \"// more\"\nsave\nquit\n"), 0) << test.Output();
  EXPECT_EQ(ReadWholeFile(test.Folder() / "Main.pas"), bytes + "// more");
}

TEST(Workbench, KeepsOptionsOnlyWhenAccepted) {
  TMacroTest test;
  const std::string enter =
      "menu Tools|Options...\nexpect Options\npage \"Crew Options\"\ntype Ship Argo\nchoose Rank Captain\n";
  EXPECT_EQ(test.Play(enter + "press Cancel\nexpect-no-dialog\nquit\n"), 0) << test.Output();
  EXPECT_EQ(test.Play(enter + "press OK\nexpect-no-dialog\nquit\n"), 0) << test.Output();
  EXPECT_EQ(test.Play("menu Tools|Options...\nexpect Options\nselect \"Crew Options\"\nexpect-text Argo\n"
                      "expect-text Captain\npress Cancel\nexpect-no-dialog\nquit\n"),
            0)
      << test.Output();
  const auto log = test.Log();
  EXPECT_EQ(std::ranges::count(log, "options saved: Argo, Captain"), 1);
  EXPECT_EQ(std::ranges::count(log, "options modified"), 1);
}

TEST(Workbench, RunsAWizardFromTheGallery) {
  TMacroTest test;
  EXPECT_EQ(test.Play("menu File|New|Other...\n"
                      "expect \"New Items\"\n"
                      "select \"Other Files\"\n"
                      "expect-text \"Calls the crew together\"\n"
                      "press OK\n"
                      "expect-no-dialog\n"
                      "open Boat.qvxproj\n"
                      "menu File|New|Unit\n"
                      "expect-editor Unit1.pas \"unit Unit1;\"\n"
                      "save-all\n"
                      "expect-file Boat.qvxproj Module=Unit1.pas\n"
                      "expect-file Unit1.pas \"unit Unit1;\"\n"
                      "quit\n"),
            0)
      << test.Output();
  EXPECT_THAT(test.Log(), Contains("wizard executed"));
}

TEST(Workbench, ReportsAFailedStepAndEndsOpenDialogs) {
  TMacroTest test;
  EXPECT_EQ(
      test.Play("limit 500\nopen Boat.qvxproj\nmenu \"Crew|Check Out...\"\nexpect \"Another Dialog\"\n"), 1);
  EXPECT_THAT(test.Output(),
              HasSubstr("FAILED line 4: expect \"Another Dialog\": the dialog \"Crew Files\" is open"));
  EXPECT_TRUE(FileExists(test.Folder() / "failed.png"));
  EXPECT_THAT(test.Log(), IsSupersetOf({"cancelled, comment ", "finalize", "unloaded"}));
}

TEST(Workbench, SaysWhyAFileCannotBeOpened) {
  TMacroTest test;
  test.Folder().Write("Long.pas", std::string(5'000'000, 'x'));
  ASSERT_EQ(std::system(("mkfifo '" + (test.Folder() / "Pipe.pas") + "'").c_str()), 0);
  for (const auto& [file, reason] : std::map<std::string, std::string>{
           {"Nothing.pas", "does not exist"},
           {"Pipe.pas", "is a pipe or a device"},
           {"Long.pas", "has a line of 5000000 bytes; the editor takes lines of up to 4194304"}}) {
    EXPECT_EQ(test.Play("open " + file + "\n"), 1);
    EXPECT_THAT(test.Output(), HasSubstr(file + " " + reason));
  }
}

TEST(Workbench, StartsWithoutAPackageThatCannotBeLoaded) {
  TMacroTest test;
  EXPECT_EQ(test.Play("expect-message \"could not be loaded\"\nexpect-message \"does not exist\"\nquit\n",
                      "--package Main.pas --package missing.so"),
            0)
      << test.Output();
  EXPECT_THAT(test.Output(), HasSubstr("workbench: Package"));
}

}  // namespace

}  // namespace kestrel::workbench
