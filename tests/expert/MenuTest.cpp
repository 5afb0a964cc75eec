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

TEST_F(TeamMenu, AnswerMarksTheFilesInTheHostUntilTheProjectCloses) {
  const struct {
    Long Status;
    TFileMark Mark;
    const char* Hint;
  } rows[] = {
      {0, TFileMark::NotControlled, "Not under source control"},
      {0x1, TFileMark::Controlled, "Under source control"},
      {0x1003, TFileMark::OutToMe, "Checked out by you"},
      {0x1803, TFileMark::Changed, "Checked out by you\nChanged"},
      {0x821, TFileMark::OutOfDate, "Changed\nA newer version is in the repository"},
      {0x41, TFileMark::OutOfDate, "Deleted in the repository"},
      {0x1009, TFileMark::OutToOther, "Checked out by you in another place"},
      {0x2D, TFileMark::OutToOther, "A newer version is in the repository\nChecked out by another user"},
      {0x1903, TFileMark::InConflict, "Checked out by you\nChanged\nIn conflict"},
      {-1, TFileMark::Unknown, nullptr},
  };
  units_.clear();
  std::map<std::string, TFileState> shown;
  for (const auto& row : rows) {
    const auto file = At(std::to_string(row.Status) + ".pas");
    units_.push_back(file);
    provider_->Statuses[file] = row.Status;
    if (row.Hint) shown[file] = {file, row.Mark, row.Hint};
  }
  const auto shownUnits = [&] {
    auto states = host_.States;
    std::erase_if(states, [&](const auto& state) { return std::ranges::count(units_, state.first) == 0; });
    return states;
  };
  Open();
  Drop();
  EXPECT_EQ(shownUnits(), shown);
  provider_->Statuses[units_[0]] = 0x1;
  host_.States.clear();
  Drop();
  EXPECT_THAT(host_.States, testing::SizeIs(1)) << "the host gets what has changed";
  shown[units_[0]] = {units_[0], TFileMark::Controlled, "Under source control"};
  host_.Notify(TOTAFileNotification::fnFileClosing, project_file_);
  EXPECT_THAT(host_.States, IsEmpty());
  const auto queries = provider_->Count("SccQueryInfo");
  host_.Notify(TOTAFileNotification::fnFileOpened, project_file_);
  EXPECT_EQ(shownUnits(), shown) << "as after a reload";
  EXPECT_EQ(provider_->Count("SccQueryInfo"), queries);
}

TEST_F(TeamMenu, TriesAgainToOpenTheProjectAfterAWhile) {
  std::chrono::steady_clock::time_point now{};
  expert_ = std::make_unique<TSccExpert>(forms_, [&] { return now; });
  host_.AddProject(project_file_, units_);
  const auto opened = [&](Long code, std::chrono::seconds later) {
    now += later;
    provider_->Results["SccOpenProject"] = code;
    const auto before = provider_->Count("SccOpenProject");
    Drop();
    return provider_->Count("SccOpenProject") > before;
  };
  using std::chrono::seconds;
  provider_->OnCall["SccOpenProject"] = [&](const ScriptedCall&) { now += seconds(3); };
  EXPECT_TRUE(opened(SCC_E_CONNECTIONFAILURE, seconds(0)));
  EXPECT_EQ(forms_.Boxes.size(), 1U);
  EXPECT_FALSE(opened(SCC_E_CONNECTIONFAILURE, seconds(14))) << "the last one took long";
  EXPECT_TRUE(opened(SCC_E_CONNECTIONFAILURE, seconds(1)));
  provider_->OnCall.clear();
  EXPECT_FALSE(opened(SCC_OK, seconds(14)));
  EXPECT_TRUE(opened(SCC_OK, seconds(1)));
  EXPECT_EQ(forms_.Boxes.size(), 1U) << "only the first failure has a box";
  EXPECT_THAT(Enabled(), Contains(kOut));
  EXPECT_THAT(forms_.LinesOf(mwtInfo),
              Contains("App.qvxproj is connected to its source control provider again"));
  host_.Notify(TOTAFileNotification::fnFileClosing, project_file_);
  EXPECT_TRUE(opened(SCC_E_INVALIDUSER, seconds(0)));
  EXPECT_FALSE(opened(SCC_OK, seconds(1000))) << "the user has just been asked";
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
  const auto enabled = [&] {
    std::vector<std::string> captions;
    for (const auto& item : menu.Items)
      if (item.IsEnabled && item.IsEnabled(units_[0])) captions.push_back(item.Caption);
    return captions;
  };
  EXPECT_EQ(enabled().size(), menu.Items.size() - 1) << "all while the status is unknown";
  SetMappedStatus(0);
  Drop();
  EXPECT_THAT(enabled(), ElementsAre(kAdd));
  SetMappedStatus(0x1003);
  Drop();
  EXPECT_THAT(enabled(), ElementsAre(kIn, kRemove, kUndo, "Show Differences...", "Get Latest Version",
                                     "Show History...", "Properties..."));
  SetMappedStatus(0x101);
  Drop();
  EXPECT_THAT(enabled(), IsSupersetOf({kOut, kIn, kUndo})) << "a conflict can be settled or given up";
  host_.Notify(TOTAFileNotification::fnFileClosing, project_file_);
  EXPECT_FALSE(menu.IsEnabled(units_[0]));
}

}  // namespace kestrel::addin
