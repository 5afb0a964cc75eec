// Two developers on one repository, each with the add-in on the Subversion provider.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <memory>

#include "expert/MappingFile.h"
#include "expert/SccExpert.h"
#include "host/Errors.h"
#include "subversion/TestRepository.h"
#include "support/ScriptedForms.h"
#include "support/ScriptedHost.h"
#include "system/Registry.h"
#include "system/System.h"
#include "ui/ExpertMainMenu.h"

namespace kestrel::addin {

namespace {

using testing::Contains;
using testing::HasSubstr;
using testing::Not;

constexpr const char* kProvider = "Subversion";
constexpr const char* kUnit = "W\xC3\xAFng 1.pas";

/// One developer's machine: host, windows, add-in and a working folder.  One at a time: a process has one provider.
class TDesk {
 public:
  TDesk(const std::string& user, const std::string& folder, const std::string& url) : folder_(folder) {
    std::filesystem::create_directories(folder);
    project_ = folder + "/Flight.qvxproj";
    TMappingFile mapping(MappingFileName(project_));
    mapping.Write(kProvider, kMapProjName, "/trunk/Flight plan");
    mapping.Write(kProvider, kMapAuxProjPath, url);
    mapping.Write(kProvider, kMapUserName, user);
    Expert = std::make_unique<TSccExpert>(Forms);
    Host.AddProject(project_, {File(kUnit)});
    Host.Notify(TOTAFileNotification::fnFileOpened, project_);
  }
  ~TDesk() { Host.Notify(TOTAFileNotification::fnFileClosing, project_); }

  std::string File(const std::string& name) const { return folder_ + "/" + name; }
  /// Runs a command from the menu: ticks the unit and answers the comment.
  void Run(void (TSccExpert::*command)(const std::string&), const std::string& comment,
           const std::string& file = {}) {
    Forms.Boxes.clear();
    Forms.OnFileList.assign(1, [](TFileListModel& model) {
      for (std::size_t row = 0; row < model.Count(); ++row) model.SetChecked(row, model.NameOf(row) == kUnit);
      model.KeepCheckedOut = model.CheckOutAfterAdd = false;
      return mrOk;
    });
    Forms.OnComments.assign(1, [&](TCommentModel& model) {
      model.Text = comment;
      return mrOk;
    });
    Expert->RunCommand("%s", [&] { (Expert.get()->*command)(file); });
  }
  std::vector<std::string> Said() {
    std::vector<std::string> lines;
    for (const auto& [kind, text] : Forms.Lines) lines.push_back(text);
    return lines;
  }
  bool Writable(const std::string& name) const { return (GetFileAttributesOf(File(name)) & faReadOnly) == 0; }

  TScriptedHost Host;
  TScriptedForms Forms;
  std::unique_ptr<TSccExpert> Expert;

 private:
  std::string folder_;
  std::string project_;
};

class Team : public testing::Test {
 protected:
  Team() {
    TRegistry registry;
    repository_.Choose("/trunk/Flight plan");
    registry.OpenKey("Software\\Subversion");
    registry.WriteString(kServerPath, svnscc::SubversionLibrary());
    registry.OpenKey(kInstalledProvidersKey);
    registry.WriteString(kProvider, "Software\\Subversion");
    registry.OpenKey(kProviderKey);
    registry.WriteString(kProviderRegKey, "Software\\Subversion");
  }
  std::unique_ptr<TDesk> Sit(const std::string& user) {
    return std::make_unique<TDesk>(user, folder_ / ("desk of " + user), repository_.Url());
  }

  svnscc::TTestRepository repository_;  // also gives the test a registry of its own
  TTemporaryFolder folder_;
};

TEST_F(Team, OneChecksOutTheOtherIsRefusedAndGetsTheResult) {
  const std::string path = std::string("trunk/Flight plan/") + kUnit;
  {
    auto ann = Sit("ann");
    WriteFileAtomically(ann->File(kUnit), "unit Wing;\n");
    WriteFileAtomically(ann->File("Flight.qvxproj"), "[Project]\n");
    ann->Run(&TSccExpert::AddFiles, "first");
    EXPECT_THAT(ann->Forms.Boxes,
                Contains(TShownBox{"Add File", std::string(kUnit) + " was added successfully", metInfo}));
    EXPECT_FALSE(ann->Writable(kUnit));

    ann->Run(&TSccExpert::CheckOutFiles, "for the lift");
    EXPECT_TRUE(ann->Writable(kUnit));
    EXPECT_EQ(repository_.LockOwner(path), "ann");
    EXPECT_EQ(repository_.LockComment(path), "for the lift");
    EXPECT_THAT(ann->Said(), Contains(HasSubstr(kUnit)));
  }
  {
    auto bob = Sit("bob");
    bob->Run(&TSccExpert::GetLatestVersion, "", bob->File(kUnit));
    EXPECT_EQ(ReadWholeFile(bob->File(kUnit)), "unit Wing;\n");
    bob->Expert->Menu()->Map.OnClick();
    EXPECT_FALSE(bob->Expert->Menu()->actCheckOutFiles.Enabled) << "out exclusively to ann";
    bob->Run(&TSccExpert::CheckOutFiles, "me too", bob->File(kUnit));
    EXPECT_THAT(bob->Forms.Boxes,
                Contains(TShownBox{"Check Out File",
                                   "Someone else has done an exclusive checkout on this file", metError}));
    EXPECT_FALSE(bob->Writable(kUnit));
    EXPECT_EQ(repository_.LockOwner(path), "ann");
  }
  const auto before = repository_.Youngest();
  {
    auto ann = Sit("ann");
    WriteFileAtomically(ann->File(kUnit), "unit Wing; { lift }\n");
    ann->Run(&TSccExpert::CheckInFiles, "Lift added");
    EXPECT_EQ(repository_.Youngest(), before + 1);
    EXPECT_EQ(repository_.Log(before + 1), "Lift added");
    EXPECT_EQ(repository_.Author(before + 1), "ann");
    EXPECT_EQ(repository_.LockOwner(path), std::nullopt);
  }
  auto bob = Sit("bob");
  bob->Run(&TSccExpert::GetLatestVersion, "");
  EXPECT_EQ(ReadWholeFile(bob->File(kUnit)), "unit Wing; { lift }\n");
  bob->Run(&TSccExpert::CheckOutFiles, "my turn");
  EXPECT_EQ(repository_.LockOwner(path), "bob");
  bob->Run(&TSccExpert::UndoCheckOut, "");
  EXPECT_EQ(repository_.LockOwner(path), std::nullopt);
}

TEST_F(Team, RepositoryThatIsGoneIsSaidInWordsAndLosesNothing) {
  {
    auto ann = Sit("ann");
    WriteFileAtomically(ann->File(kUnit), "unit Wing;\n");
    ann->Run(&TSccExpert::AddFiles, "first");
    ann->Run(&TSccExpert::CheckOutFiles, "x");
  }
  const auto mapping = folder_ / "desk of ann/Flight.cdp";
  const auto before = ReadWholeFile(mapping);
  WriteFileAtomically(folder_ / ("desk of ann/" + std::string(kUnit)), "unit Wing; { edited }\n");
  std::filesystem::rename(repository_.Folder(), repository_.Folder() + ".away");
  {
    auto ann = Sit("ann");
    EXPECT_THAT(
        ann->Forms.Boxes,
        Contains(TShownBox{"Open Project", "Unknown error, unable to open provider project", metError}));
    EXPECT_FALSE(ann->Forms.LinesOf(mwtError).empty()) << "the provider's own words";
    ann->Expert->Menu()->Map.OnClick();
    EXPECT_FALSE(ann->Expert->Menu()->actCheckInFiles.Enabled);
  }
  std::filesystem::rename(repository_.Folder() + ".away", repository_.Folder());
  EXPECT_EQ(ReadWholeFile(mapping), before);
  EXPECT_EQ(ReadWholeFile(folder_ / ("desk of ann/" + std::string(kUnit))), "unit Wing; { edited }\n");
  auto ann = Sit("ann");
  ann->Expert->Menu()->Map.OnClick();
  EXPECT_TRUE(ann->Expert->Menu()->actCheckInFiles.Enabled) << "still out to ann";
}

}  // namespace

}  // namespace kestrel::addin
