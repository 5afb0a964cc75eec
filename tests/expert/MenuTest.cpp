// What the "Team" menu offers when it opens.
#include "expert/ExpertFixture.h"

namespace kestrel::addin {

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

constexpr const char *kOut = "Check Out Files...", *kIn = "Check In Files...", *kAdd = "Add Files...",
                     *kRemove = "Remove Files...", *kUndo = "Undo Check Out Files...",
                     *kBrowser = "Commit Browser...", *kPlace = "Place Project Into Source Control...",
                     *kPull = "Pull Project from Source Control...", *kRun = "Run Scc Application";

TEST_F(TeamMenu, FollowsTheStatusOfTheFiles) {
  Open();
  const struct {
    const char* Name;
    Long Status;
    std::vector<std::string> Items;
  } rows[] = {
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
    EXPECT_THAT(Enabled(), ElementsAreArray(row.Items));
  }
}

TEST_F(TeamMenu, NeedsOneFileOfAKindAndCompanionsOnDisk) {
  Open();
  provider_->Statuses[units_[1]] = 0x1003;
  provider_->StatusOf = [&](const std::string& file) { return Long{ExtractFileExt(file) == ".pas"}; };
  Drop();
  EXPECT_THAT(Enabled(), ElementsAre(kOut, kIn, kAdd, kRemove, kUndo, kBrowser, kPull, kRun));
  provider_->StatusOf = [](const std::string& file) { return Long{FileExists(file) ? 0x1003 : 0}; };
  Drop();
  EXPECT_THAT(Enabled(), ElementsAre(kIn, kRemove, kUndo, kBrowser, kPull, kRun));
}

TEST_F(TeamMenu, WithoutAMappingOnlyPlacingAndPullingRemain) {
  Start();
  Drop();
  EXPECT_THAT(Enabled(), ElementsAre(kPull, kRun)) << "no project";
  fs::remove(At("App.cdp"));
  host_.AddProject(project_file_, units_);
  host_.Notify(TOTAFileNotification::fnFileOpened, project_file_);
  Drop();
  EXPECT_THAT(Enabled(), ElementsAre(kPlace, kPull, kRun));
  host_.Notify(TOTAFileNotification::fnFileClosing, project_file_);
  host_.CloseModule(project_file_);
  TRegistry().DeleteKey("Software");
  Drop();
  EXPECT_THAT(Enabled(), ElementsAre(kPull)) << "no project, no provider";
}

TEST_F(TeamMenu, SeesAMappingThatAppearsOrIsRepaired) {
  const auto mapping = Mapping();
  const auto starts = [this] { return std::ranges::count(provider_->Entries(), "SccInitialize"); };
  SetMappedStatus(1);
  fs::remove(At("App.cdp"));
  Open();
  for (const auto& unreadable : {std::string(), std::string("[Scripted]\n\0", 12), mapping + "cut"}) {
    if (!unreadable.empty()) {
      host_.Notify(TOTAFileNotification::fnFileClosing, project_file_);
      WriteMapping(unreadable);
      provider_->Results["SccOpenProject"] = scc::SCC_E_ACCESSFAILURE;
    }
    Drop();
    const auto before = starts();
    Drop();
    EXPECT_EQ(starts(), before) << "nothing has changed";
    EXPECT_THAT(Enabled(), Not(Contains(kOut)));
    WriteMapping(mapping);
    provider_->Results.clear();
    Drop();
    EXPECT_THAT(Enabled(), Contains(kOut));
  }
}

TEST_F(TeamMenu, ProviderThatCannotBeLoadedIsNamedInTheMessageWindow) {
  InstallProvider(kScripted, At("unit1.pas"), true);  // no library
  Open();
  Drop();
  EXPECT_THAT(Enabled(), ElementsAre(kPull));
  EXPECT_THAT(forms_.LinesOf(mwtInfo), Contains("MainMenu; SCC DLL Loadlibrary failed"));
}

TEST_F(TeamMenu, IsOfferedForAFileOnlyWhileAProviderProjectIsOpen) {
  Start();
  const auto& menu = *host_.FileMenus.at(0);
  EXPECT_FALSE(menu.IsEnabled(units_[0])) << "no project";
  host_.AddProject(project_file_, units_);
  provider_->Results["SccOpenProject"] = SCC_E_COULDNOTCREATEPROJECT;
  host_.Notify(TOTAFileNotification::fnFileOpened, project_file_);
  EXPECT_TRUE(expert_->ProviderList());
  EXPECT_FALSE(menu.IsEnabled(units_[0])) << "the provider refused the project";
  provider_->Results.clear();
  host_.Notify(TOTAFileNotification::fnFileOpened, project_file_);
  EXPECT_TRUE(menu.IsEnabled(units_[0]));
  EXPECT_FALSE(menu.IsEnabled("")) << "a text that was never saved";
  host_.Notify(TOTAFileNotification::fnFileClosing, project_file_);
  EXPECT_FALSE(menu.IsEnabled(units_[0]));
}

}  // namespace kestrel::addin
