// Placing a project: pages, buttons, what is written when.
#include "expert/ExpertFixture.h"
#include "wizards/PlaceProjectController.h"

namespace kestrel::addin {

class PlaceProject : public TExpertTest {
 protected:
  PlaceProject() {
    fs::remove(At("App.cdp"));
    provider_->GetProjPath = {{}, "trunk/App", {}, "repo"};
  }
  /// The wizard on its first page, for the project that the host has open.
  TPlaceProjectController& Show() {
    if (!expert_) Start();
    if (!host_.FindModule(project_file_)) host_.AddProject(project_file_, units_);
    pages_ = std::make_unique<TPlaceProjectController>(expert_->Context());
    pages_->FormCreate(0);
    return *pages_;
  }
  void Next(int times = 1) {
    for (int i = 0; i < times; ++i) pages_->NextFinishButtonClick();
  }
  std::vector<std::string> Files() const {
    std::vector<std::string> names;
    for (std::size_t row = 0; row < pages_->FileCount(); ++row) names.push_back(pages_->FileName(row));
    return names;
  }
  /// The registry lists providers in an order of its own.
  void Choose(const std::string& provider) {
    const auto names = pages_->Providers();
    pages_->cbProvidersChange(static_cast<int>(std::ranges::find(names, provider) - names.begin()));
  }
  const TWizardPageState& Page() const { return pages_->Page(); }

  std::unique_ptr<TPlaceProjectController> pages_;
};

TEST_F(PlaceProject, GoesThroughItsPagesAndLeavesTheProjectOpen) {
  SetFileAttributesOf(units_[0], faReadOnly);
  units_.push_back(At("unit1.kfm"));  // its unit's companion too
  units_.push_back(folder_.Write("work/UNIT2.pas", "x"));
  units_.push_back(folder_.Write("lib/shared.pas", "x"));
  Show();
  EXPECT_FALSE(Page().Back);
  Next();
  EXPECT_TRUE(provider_->Last("SccGetProjPath").IsNew) << "the browser opens by itself, and may create";
  EXPECT_TRUE(Page().Back && Page().Next);
  Next();
  EXPECT_THAT(Files(),
              ElementsAre("unit1.pas", "unit2.pas", "unit1.kfm", Native("../lib/shared.pas"), "App.qvxproj"));
  pages_->SetTicked(1, false);
  pages_->KeepCheckedOut = true;
  provider_->OpenProject.User = "ann@repo";
  provider_->OnCall["SccAdd"] = [&](const ScriptedCall& call) {
    const bool fails = call.Files[0] == At("App.qvxproj") || call.Files[0] == units_.back();
    provider_->Results["SccAdd"] = fails ? scc::SCC_E_NONSPECIFICERROR : 0;
  };
  provider_->Calls.clear();

  Next();
  EXPECT_FALSE(Page().Back);
  EXPECT_THAT(provider_->Entries(), ElementsAre("SccOpenProject", "SccCloseProject", "SccOpenProject",
                                                "SccAdd", "SccAdd", "SccAdd", "SccAdd"));
  EXPECT_EQ(provider_->Last("SccAdd").FileFlags[0], scc::SCC_KEEP_CHECKEDOUT);
  const auto reason = StartsWith("      ");
  EXPECT_THAT(pages_->Status(),
              ElementsAre("Initializing Project App.qvxproj", "Add unit1.pas: ok", "Add unit1.kfm: ok",
                          "Add " + Native("lib/shared.pas") + ": failed", reason,
                          "Add " + Native("work/App.qvxproj") + ": failed", reason, "Succeeded"));
  EXPECT_EQ(GetFileAttributesOf(units_[0]), faArchive) << "writable";
  EXPECT_EQ(Mapping(), "[Scripted]\nProjName=trunk/App\nAuxProjPath=repo\nUserName=ann@repo\n");

  Next();
  EXPECT_TRUE(pages_->Finished());
  EXPECT_TRUE(provider_->Open);
  host_.Notify(TOTAFileNotification::fnFileClosing, project_file_);
  EXPECT_FALSE(provider_->Open) << "it is the commands' project from now on";
}

TEST_F(PlaceProject, RefusedOpenRollsBackAndCanBeTriedAgain) {
  Show();
  Next(2);
  provider_->Results["SccOpenProject"] = scc::SCC_E_INVALIDUSER;
  provider_->Results["SccAdd"] = scc::SCC_E_PROJNOTOPEN;
  for (std::size_t row = 1; row < 4; ++row) pages_->SetTicked(row, false);
  Next();
  EXPECT_EQ(provider_->Count("SccAdd"), 1) << "files are offered all the same";
  EXPECT_THAT(pages_->Status(), ElementsAre("Initializing Project App.qvxproj",
                                            "Add " + Native("work/unit1.pas") + ": failed"));
  EXPECT_THAT(Page().Problem, HasSubstr("could not login")) << "below the list, and whole";
  EXPECT_EQ(Mapping(), "[Scripted]\nProjName=trunk/App\nAuxProjPath=repo\n") << "stays";
  EXPECT_EQ(expert_->ProviderList()->CurrentProject(), nullptr);

  provider_->Results.clear();
  pages_->BackButtonClick();
  EXPECT_TRUE(pages_->IsTicked(1)) << "a new list";
  for (std::size_t row = 0; row < 4; ++row) pages_->SetTicked(row, false);
  provider_->Calls.clear();
  Next();
  EXPECT_EQ(provider_->Last("SccOpenProject").ProjName, "trunk/App") << "what was picked is not lost";
  EXPECT_THAT(pages_->Status(), ElementsAre("Initializing Project App.qvxproj", "Succeeded"));
}

TEST_F(PlaceProject, MappingFileThatCannotBeWrittenEndsIt) {
  fs::create_directories(At("App.cdp"));
  Show();
  Next(3);
  EXPECT_THAT(pages_->Status(), ElementsAre("Initializing Project App.qvxproj", HasSubstr("App.cdp")));
  EXPECT_THAT(GivenTo("SccAdd"), IsEmpty());
  EXPECT_FALSE(provider_->Open);
}

TEST_F(PlaceProject, ProviderThatNeedsNoBrowserSkipsItsPage) {
  InstallProvider("ClearCase", ScriptedProviderLibrary::Path(), false);
  Show();
  EXPECT_THAT(pages_->Providers(), UnorderedElementsAre("Scripted", "ClearCase"));
  Choose("ClearCase");
  Next();
  EXPECT_EQ(Page().Panel, 3);
  EXPECT_EQ(provider_->Count("SccGetProjPath"), 0);
  provider_->Results["SccOpenProject"] = scc::SCC_E_UNKNOWNPROJECT;
  Next();
  pages_->BackButtonClick();
  EXPECT_EQ(Page().Panel, 3);
  provider_->Results.clear();
  Next();
  EXPECT_THAT(Mapping(), HasSubstr("ProjName=" + At("") + "\n")) << "a second try names the same project";
  EXPECT_EQ(provider_->Last("SccOpenProject").ProjName, At(""));
}

TEST_F(PlaceProject, CanBeStoppedBetweenTwoFiles) {
  Show();
  Next(2);
  provider_->OnCall["SccAdd"] = [&](const ScriptedCall&) {
    EXPECT_TRUE(Page().Cancel);
    const bool close = provider_->Count("SccAdd") == 2 && pages_->CancelButtonClick();
    EXPECT_FALSE(close) << "not while it works";
  };
  Next();
  EXPECT_EQ(provider_->Count("SccAdd"), 2);
  EXPECT_EQ(pages_->Status().back(), "Stopped. Files that were not added: 2. Team | Add Files... adds them.");
  EXPECT_TRUE(provider_->Open) << "for the rest";
  EXPECT_TRUE(pages_->CancelButtonClick());
}

TEST_F(PlaceProject, NeedsAProjectToContinue) {
  provider_->Results["SccGetProjPath"] = scc::SCC_I_OPERATIONCANCELED;
  provider_->GetProjPath = {};
  Show();
  Next();
  EXPECT_FALSE(Page().Next);
  EXPECT_EQ(Page().Problem, "");
  provider_->Results["SccGetProjPath"] = scc::SCC_E_CONNECTIONFAILURE;
  pages_->ProjectBrowserButtonClick();
  EXPECT_EQ(Page().Problem, "Connection failure");
  pages_->ProjectNameChange("typed/App");
  EXPECT_TRUE(Page().Next);
  Next(2);
  EXPECT_THAT(Mapping(), HasSubstr("ProjName=typed/App"));
}

TEST_F(PlaceProject, FirstPageReportsThatNoProviderCanBeUsed) {
  WriteValue("Software\\Scripted", kServerPath, "/nowhere/none.so");
  Show();
  EXPECT_FALSE(Page().Next);
  EXPECT_TRUE(Page().NoProviders);
  EXPECT_EQ(Page().Problem, "SCC DLL Loadlibrary failed");

  InstallProvider("Other", ScriptedProviderLibrary::Path(), false);
  Show();
  Choose("Other");
  EXPECT_TRUE(Page().Next);
  EXPECT_FALSE(Page().NoProviders);
}

TEST_F(PlaceProject, NothingElseStartsWhileTheProvidersBrowserIsOpen) {
  Show();
  provider_->OnCall["SccGetProjPath"] = [&](const ScriptedCall&) {
    Choose(kScripted);
    pages_->BackButtonClick();
    EXPECT_EQ(Page().Problem, "The source code control provider is still busy with another call");
    EXPECT_EQ(Page().Panel, 2);
  };
  provider_->Calls.clear();
  Next();
  EXPECT_THAT(provider_->Entries(), ElementsAre("SccGetProjPath"));
  EXPECT_EQ(pages_->ProjectName(), "trunk/App");
  EXPECT_EQ(Page().Problem, "");
}

TEST_F(PlaceProject, ReportsWhenTheHostClosesTheProject) {
  Show();
  Next(2);
  provider_->OnCall["SccAdd"] = [&](const ScriptedCall&) {
    host_.Notify(TOTAFileNotification::fnFileClosing, project_file_);
  };
  Next();
  EXPECT_EQ(provider_->Count("SccAdd"), 1);
  EXPECT_EQ(pages_->Status().back(), "Unable to place project, provider not assigned");
}

}  // namespace kestrel::addin
