// Stories that a macro plays on the real workbench with a real package in it.
#include <sys/wait.h>

#include <array>
#include <csignal>
#include <cstdio>
#include <fstream>

#include "support/Environment.h"
#include "support/TemporaryFolder.h"
#include "support/Testing.h"

namespace kestrel::workbench {

/// Boat.qvxproj (Main.pas with Main.kfm, sub/Deck.pas read-only, Faulty.pas) and Raft.qvxproj (Log.pas) in
/// Fleet.qvxgroup, Boat active.  Settings of its own.
class Workbench : public testing::Test {
 protected:
  Workbench() {
    for (const char* unit : {"Main.pas", "Faulty.pas", "Log.pas", "sub/Deck.pas"})
      folder_.Write(unit, "unit Source;\nend.\n");
    folder_.Write("Main.kfm", "object Main: TMain\nend\n");
    SetFileAttributesOf(folder_ / "sub/Deck.pas", faReadOnly);
    folder_.Write("Boat.qvxproj",
                  "[Project]\n[Modules]\nModule=Main.pas\nModule=sub/Deck.pas\nModule=Faulty.pas\n");
    folder_.Write("Raft.qvxproj", "[Project]\n[Modules]\nModule=Log.pas\n");
    folder_.Write("Fleet.qvxgroup",
                  "[Group]\nActive=Boat.qvxproj\n[Projects]\nProject=Boat.qvxproj\nProject=Raft.qvxproj\n");
  }
  /// Plays the macro in the folder; the program's exit code.  What it prints is in output_, both streams.
  int Play(const std::string& macro, const std::string& options = "") {
    folder_.Write("story.macro", macro);
    const std::string command = "cd '" + folder_.Path() +
                                "' && '" WORKBENCH_PATH "' --play story.macro --package '" +
                                SAMPLE_PACKAGE_PATH "' " + options + " 2>&1";
    output_.clear();
    std::FILE* pipe = popen(command.c_str(), "r");
    std::array<char, 4096> part;
    while (const std::size_t read = std::fread(part.data(), 1, part.size(), pipe))
      output_.append(part.data(), read);
    const int status = pclose(pipe);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
  }
  /// Plays the macro, quits the program and expects that all of it succeeds.
  void Run(const std::string& macro, const std::string& options = "") {
    EXPECT_EQ(Play(macro + "quit\n", options), 0) << output_;
  }
  /// The package's lines of all plays.
  std::vector<std::string> Log() const {
    std::vector<std::string> lines;
    std::ifstream log(folder_ / "log.txt");
    for (std::string line; std::getline(log, line);) lines.push_back(line);
    return lines;
  }

  const TTemporaryFolder folder_;
  const TEnvironmentVariable registry_{"CORVANE_REGISTRY_DIR", folder_.MakeFolder("settings").c_str()};
  const TEnvironmentVariable log_{"CREW_LOG", (folder_ / "log.txt").c_str()};
  std::string output_;
};

TEST_F(Workbench, LoadsAndUnloadsAPackageInOrder) {
  Run("expect-enabled \"Crew|Beep\"\nmenu Crew|Beep\nmenu Crew|More|Deep\n");
  EXPECT_THAT(Log(), ElementsAre("initialize", "register, no main form", "main form created", "deep clicked",
                                 "menu gone", "notifier destroyed", "finalize", "unloaded"));
}

TEST_F(Workbench, OffersAPackagesCommandsForAFileAndInTheCommandList) {
  Run(R"(
    open Boat.qvxproj
    expect-file-disabled Boat.qvxproj Crew|Hail
    expect-file-enabled Main.pas Crew|Hail
    file-menu sub/Deck.pas Crew|Hail
    file-menu Main.pas Crew|Sink
    expect-message "will not sink"
    menu Tools|Commands...
    expect Commands
    type Search out
    select "Crew: Check Out..."
    press Run
    expect "Crew Files"
    press Cancel
    expect-no-dialog
  )");
  EXPECT_THAT(Log(), IsSupersetOf({"hail Deck.pas", "cancelled"}));
}

TEST_F(Workbench, OpensMenusByMouseAndKeyboard) {
  Run(R"(
    open Boat.qvxproj
    point menu Crew
    click left
    expect-menu
    point menu "Crew|Check Out..."
    click left
    expect "Crew Files"
    expect-no-menu
    key Escape
    expect-no-dialog
    key F10
    expect-menu
    key Escape
    expect-no-menu
    point row sub/Deck.pas
    click right
    expect-menu
    key Up
    key Right
    key Return
    expect-no-menu
  )");
  EXPECT_THAT(Log(), IsSupersetOf({"cancelled", "hail Deck.pas"}));
}

TEST_F(Workbench, ShowsTheEditorsOwnMenuAndEndsWithAMenuOpen) {
  const std::string menus = R"(
    open Main.pas
    point editor Main.pas
    click right
    expect-menu
    expect-text "Ln 3, Col 1"
    key Escape
    expect-no-menu
    click right
    expect-menu
  )";
  Run(menus + "key Escape\nexpect-no-menu\n");
  for (const auto* open : {"", "key Escape\nexpect-no-menu\nkey F10\nexpect-menu\n"})
    EXPECT_EQ(Play(menus + open + "run \"kill -TERM $PPID\"\nexpect-no-menu\nwait 60000\n"), 128 + SIGTERM)
        << output_;
  EXPECT_EQ(Log().back(), "unloaded");
}

TEST_F(Workbench, FindsAndReplacesInOneDialogThatEndsWithTheProgram) {
  Run(R"(
    open Main.pas
    key Ctrl+F
    expect Find
    key E
    key N
    expect-button Find...
    key Return
    expect-text "Ln 2, Col 1"
    menu Search|Replace...
    expect Replace
    type "Replace with" EN
    press "Replace all"
    expect-editor Main.pas ENd.
    key Escape
    expect-no-text "Replace with"
    save
    menu Search|Find...
    expect Find
    menu File|Exit
    wait 60000
  )");
  EXPECT_THAT(output_, Not(HasSubstr("wincmn"))) << "the toolkit complains";
}

TEST_F(Workbench, ShowsABoxThatComesUpWhileAMenuOpensAndThenTheMenu) {
  const TEnvironmentVariable box("CREW_BOX", "1");
  const struct {
    std::string Open, Answer;
  } rows[] = {{"point menu Crew\nclick left\n", "key Return\n"},
              {"key F10\nexpect-menu\nkey Left\nkey Left\n", "key KP_Enter\n"},
              {"key Alt+C\n", "key Space\n"}};
  for (const auto& [open, answer] : rows)
    Run("open Boat.qvxproj\n" + open + "expect \"Crew Box\"\n" + answer + R"(
      expect-no-dialog
      expect-menu
      key F
      expect-message "the crew is asleep"
    )");
}

TEST_F(Workbench, RefusesToExitWhileAPackageRunsItsOwnEventLoop) {
  const std::string macro = R"(
    open Boat.qvxproj
    menu Crew|Watch
    menu File|Exit
    expect-message "cannot be closed while a command is running"
    limit 100
    open Nothing.pas
  )";
  EXPECT_EQ(Play(macro), 1) << output_;
}

TEST_F(Workbench, SurvivesPackagesThatThrow) {
  Run(R"(
    open Boat.qvxproj
    open Faulty.pas
    expect-message "faulty notifier"
    menu Crew|Fail
    expect-message "the crew is asleep"
    menu Crew|Abort
    menu "Crew|Check Out..."
    press Mutiny
    expect-message "the crew mutinies"
    press Cancel
    expect-no-dialog
    menu Crew|Help
    expect-text "There is no help for HC_Crew."
    press OK
  )");
  EXPECT_THAT(output_, Not(HasSubstr("nobody hears this")));
}

TEST_F(Workbench, AsksBeforeUnsavedChangesAreLost) {
  Run(R"(
    open Boat.qvxproj
    edit Main.pas "// one"
    menu File|Exit
    expect-text "Save changes to Main.pas?"
    press Cancel
    expect-editor Main.pas "// one"
    menu File|Close
    press "Don't Save"
    expect-no-dialog
    edit Main.pas "// two"
    menu File|Exit
    press Save
    wait 5000
  )");
  const std::string text = ReadWholeFile(folder_ / "Main.pas");
  EXPECT_THAT(text, HasSubstr("// two"));
  EXPECT_THAT(text, Not(HasSubstr("// one")));
}

TEST_F(Workbench, SavesTheBytesThatItDoesNotUnderstand) {
  using namespace std::string_literals;
  const std::string bytes = "unit Old;\r\n{ na\xEFve \x80 \0 \xC3\xA9 }\rend.\n\n"s;
  folder_.Write("Main.pas", bytes);
  Run("edit Main.pas \"// more\"\nsave\n");
  EXPECT_EQ(ReadWholeFile(folder_ / "Main.pas"), bytes + "// more");
}

TEST_F(Workbench, ReportsAFailedStepAndEndsOpenDialogs) {
  EXPECT_EQ(Play("limit 500\nopen Boat.qvxproj\nmenu \"Crew|Check Out...\"\nexpect \"Another Dialog\"\n"), 1);
  EXPECT_THAT(output_,
              HasSubstr("FAILED line 4: expect \"Another Dialog\": the dialog \"Crew Files\" is open"));
  EXPECT_TRUE(FileExists(folder_ / "failed.png"));
  EXPECT_THAT(Log(), IsSupersetOf({"cancelled", "finalize", "unloaded"}));
}

TEST_F(Workbench, ReportsWhyAFileCannotBeOpened) {
  folder_.Write("Long.pas", std::string(5'000'000, 'x'));
  ASSERT_EQ(std::system(("mkfifo '" + (folder_ / "Pipe.pas") + "'").c_str()), 0);
  for (const auto& [file, reason] : std::map<std::string, std::string>{
           {"Nothing.pas", "does not exist"},
           {"Pipe.pas", "is a pipe or a device"},
           {"Long.pas", "has a line of 5000000 bytes; the editor takes lines of up to 4194304"}}) {
    EXPECT_EQ(Play("open " + file + "\n"), 1);
    EXPECT_THAT(output_, HasSubstr(file + " " + reason));
  }
}

TEST_F(Workbench, StartsWithoutAPackageThatCannotBeLoaded) {
  Run("expect-message \"could not be loaded\"\nexpect-message \"does not exist\"\n",
      "--package Main.pas --package missing.so");
  EXPECT_THAT(output_, HasSubstr("workbench: Package"));
}

}  // namespace kestrel::workbench
