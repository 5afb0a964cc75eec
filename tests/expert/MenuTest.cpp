// What the "Team" menu offers when it opens.
#include "expert/ExpertFixture.h"
#include "host/System.h"

namespace {

using namespace scc;

class TeamMenu : public TExpertTest {
 protected:
  /// The user opens the menu.
  void Drop() { expert_->Menu()->Map.OnClick(); }
  /// Captions of the enabled visible items, in menu order.
  std::vector<std::string> Enabled() {
    std::vector<std::string> captions;
    for (const auto* item : expert_->Menu()->Map.Items)
      if (!item->IsSeparator() && item->IsVisible() && item->IsEnabled())
        captions.push_back(item->ShownCaption());
    return captions;
  }
  void SetMappedStatus(Long status) {
    provider_->StatusOf = [=](const std::string&) { return status; };
  }
};

constexpr const char* kOut = "Check Out Files...";
constexpr const char* kIn = "Check In Files...";
constexpr const char* kAdd = "Add Files...";
constexpr const char* kRemove = "Remove Files...";
constexpr const char* kUndo = "Undo Check Out Files...";
constexpr const char* kBrowser = "Commit Browser...";
constexpr const char* kPlace = "Place Project Into Source Control...";
constexpr const char* kPull = "Pull Project from Source Control...";
constexpr const char* kRun = "Run Scc Application";

TEST_F(TeamMenu, FollowsTheStatusOfTheFiles) {
  Open();
  struct TRow {
    const char* Name;
    Long Status;
    std::vector<std::string> Items;
  };
  const TRow rows[] = {
      {"all checked in", 1, {kOut, kRemove, kBrowser, kPull, kRun}},
      {"all mine", 0x1003, {kIn, kRemove, kUndo, kBrowser, kPull, kRun}},
      {"all exclusively another's", 0xD, {kRemove, kBrowser, kPull, kRun}},
      {"all another's, shared", 5, {kOut, kRemove, kBrowser, kPull, kRun}},
      {"none controlled", 0, {kAdd, kBrowser, kPull, kRun}},
      {"mine but not controlled", 0x1002, {kBrowser, kPull, kRun}},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.Name);
    SetMappedStatus(row.Status);
    Drop();
    EXPECT_THAT(Enabled(), testing::ElementsAreArray(row.Items));
  }
}

TEST_F(TeamMenu, OneFileOfAKindIsEnough) {
  Open();
  provider_->Statuses[units_[1]] = 0x1003;
  provider_->StatusOf = [&](const std::string& file) { return Long{ExtractFileExt(file) == ".pas"}; };
  Drop();
  EXPECT_THAT(Enabled(), ElementsAre(kOut, kIn, kAdd, kRemove, kUndo, kBrowser, kPull, kRun));
}

TEST_F(TeamMenu, WithoutAMappingOnlyPlacingAndPullingRemain) {
  Start();
  Drop();
  EXPECT_THAT(Enabled(), ElementsAre(kPull, kRun)) << "no project";
  std::filesystem::remove(At("App.cdp"));
  host_.AddProject(project_file_, units_);
  host_.Notify(TOTAFileNotification::fnFileOpened, project_file_);
  Drop();
  EXPECT_THAT(Enabled(), ElementsAre(kPlace, kPull, kRun));
}

TEST_F(TeamMenu, ProviderThatCannotBeLoadedIsNamedInTheMessageWindow) {
  InstallProvider(kScripted, At("unit1.pas"), true);  // no library
  Open();
  Drop();
  EXPECT_THAT(Enabled(), ElementsAre(kPull));
  EXPECT_THAT(forms_.LinesOf(mwtInfo), Contains("MainMenu; SCC DLL Loadlibrary failed"));
}

TEST_F(TeamMenu, ItemsStandInTheirOrderAndMessagesNeverShows) {
  Open();
  Drop();
  std::vector<std::string> names;
  for (const auto* item : expert_->Menu()->Map.Items) names.push_back(item->Name);
  EXPECT_THAT(names, ElementsAre("CheckOutFiles", "CheckInFiles", "AddFiles", "RemoveFiles",
                                 "UndoCheckOutFiles", "MainSep2", "CommitBrowser", "PlaceProject",
                                 "PullProject", "MainSep3", "ShowDifferences1", "GetFiles", "ShowHistory1",
                                 "MainSep4", "Messages1", "RunSccApplication1"));
  EXPECT_FALSE(expert_->Menu()->Messages1.IsVisible());
  EXPECT_FALSE(expert_->Menu()->ShowDifferences1.IsVisible());
}

TEST_F(TeamMenu, RunSccGoesWithTheCapability) {
  provider_->Capabilities = SCC_CAP_QUERYINFO;
  Open();
  Drop();
  EXPECT_THAT(Enabled(), Not(Contains(kRun)));
}

}  // namespace
