// Pulling a project: pages, target directory, what is fetched, listed and written.
#include "expert/ExpertFixture.h"
#include "wizards/PullProjectController.h"

namespace kestrel::addin {

class PullProject : public TExpertTest {
 protected:
  PullProject() {
    provider_->GetProjPath = {{}, "trunk/App", {}, "repo"};
    provider_->DefaultStatus = 0;
    for (const char* name : {"unit1.pas", "Sub/App.QVXPROJ", "Late.qvxproj"}) {
      provider_->List.push_back({true, scc::SCC_STATUS_CONTROLLED, In(name)});
      provider_->Statuses[In(name)] = scc::SCC_STATUS_CONTROLLED;
    }
    provider_->OnCall["SccGet"] = [this](const ScriptedCall&) {
      for (const char* name : {"unit1.pas", "Sub/App.QVXPROJ"}) {
        folder_.Write(std::string("böb's copy/") + name, "x");
        SetFileAttributesOf(In(name), faReadOnly);
      }
    };
    host_.StartupDirectory = folder_.Path();
  }
  std::string Target() const { return folder_ / "böb's copy"; }
  std::string In(const std::string& name) const { return folder_ / ("böb's copy/" + name); }

  TPullProjectController& Show() {
    if (!expert_) Start();
    pages_ = std::make_unique<TPullProjectController>(expert_->Context());
    pages_->FormCreate(0);
    return *pages_;
  }
  /// Up to the project's page.
  void Aim(const std::string& target) {
    Show();
    pages_->NextFinishButtonClick();
    pages_->TargetDirectoryChange(target);
    pages_->NextFinishButtonClick();
  }
  const TWizardPageState& Page() const { return pages_->Page(); }

  std::unique_ptr<TPullProjectController> pages_;
};

TEST_F(PullProject, FetchesListsAndMaps) {
  InstallProvider("ClearCase", ScriptedProviderLibrary::Path(), true);
  Show();
  EXPECT_THAT(pages_->Providers(), ElementsAre("Scripted")) << "the other's projects cannot be pulled";
  pages_->NextFinishButtonClick();
  EXPECT_EQ(Page().Panel, 3) << "the target directory comes first";
  EXPECT_EQ(pages_->TargetDirectory(), folder_.Path());
  pages_->TargetDirectoryChange(Target() + "/ ");
  pages_->NextFinishButtonClick();
  EXPECT_EQ(Page().Panel, 2);
  const auto& asked = provider_->Last("SccGetProjPath");
  EXPECT_EQ(asked.LocalPath, Target());
  EXPECT_FALSE(asked.IsNew || asked.Allowed);
  EXPECT_FALSE(DirectoryExists(Target())) << "nothing is made before it has to be";

  folder_.Write("böb's copy/own.txt", "mine");                       // is not listed
  provider_->Results["SccOpenProject"] = scc::SCC_I_PROJECTCREATED;  // no failures
  provider_->Results["SccGet"] = scc::SCC_I_FILENOTAFFECTED;
  provider_->Texts["SccGet"] = {{scc::SCC_MSG_INFO, "Fetched"}, {scc::SCC_MSG_WARNING, "unit1.pas was kept"}};
  pages_->NextFinishButtonClick();
  EXPECT_THAT(pages_->Status(),
              ElementsAre("unit1.pas was kept", "Get of \"unit1.pas\" SUCCEEDED",
                          "Get of \"" + Native("Sub/App.QVXPROJ") + "\" SUCCEEDED", "Done"));
  EXPECT_THAT(provider_->Last("SccGet").Files, ElementsAre(Target()));
  EXPECT_EQ(provider_->Last("SccGet").Flags, 3);
  EXPECT_EQ(GetFileAttributesOf(In("unit1.pas")), faArchive) << "writable";
  EXPECT_EQ(WithoutReturns(ReadWholeFile(In("App.cdp"))),
            "[Scripted]\nProjName=trunk/App\nAuxProjPath=repo\n");
  EXPECT_FALSE(provider_->Open);
  EXPECT_EQ(expert_->ProviderList()->GetCount(), 0);
  EXPECT_TRUE(pages_->CanOpen());
  EXPECT_EQ(pages_->ProjectFile(), In("Sub/App.QVXPROJ"));
}

TEST_F(PullProject, FailuresAreListedAndCanBeTriedAgain) {
  Aim(Target());
  provider_->Results["SccOpenProject"] = scc::SCC_E_CONNECTIONFAILURE;
  pages_->NextFinishButtonClick();
  EXPECT_THAT(pages_->Status(), ElementsAre("Connection failure", "Corvane project file not found", "Done"));
  EXPECT_EQ(Page().Problem, "Connection failure") << "whole, below the list";
  EXPECT_EQ(provider_->Count("SccPopulateList"), 0);

  provider_->Results.clear();
  pages_->BackButtonClick();
  provider_->Results["SccGet"] = scc::SCC_E_ACCESSFAILURE;
  provider_->Texts["SccGet"] = {{scc::SCC_MSG_ERROR, "disk full"}};
  pages_->NextFinishButtonClick();
  EXPECT_THAT(pages_->Status(), Contains("disk full"));
  EXPECT_THAT(ReadWholeFile(In("App.cdp")), HasSubstr("trunk/App")) << "the rest can be got later";
  EXPECT_FALSE(pages_->CanOpen());
  EXPECT_TRUE(Page().Back);

  provider_->Results = {{"SccQueryInfo", scc::SCC_E_CONNECTIONFAILURE}};
  pages_->BackButtonClick();
  pages_->NextFinishButtonClick();
  EXPECT_THAT(pages_->Status(), Contains("Connection failure"));
  EXPECT_THAT(forms_.LinesOf(mwtError), Contains(HasSubstr(": Connection failure")));
}

TEST_F(PullProject, ShowsWhatItWaitsFor) {
  host_.AddProject(project_file_, units_);
  Aim(Target());
  std::map<std::string, std::string> shown;
  std::string last;
  pages_->OnChange = [&] { last = pages_->Progress(); };
  // A form that has just been painted does nothing for a line either.
  pages_->OnProgress = [&] { shown.emplace(pages_->Progress().substr(0, 12), pages_->Progress()); };
  provider_->Texts["SccGet"] = {{scc::SCC_MSG_INFO, "unit1.pas"}};
  for (const char* entry : {"SccOpenProject", "SccGet", "SccQueryInfo"})
    provider_->OnCall[entry] = [&, work = provider_->OnCall[entry]](const ScriptedCall& call) {
      if (work) work(call);
      shown[call.Entry] = last;
      EXPECT_FALSE(Page().Cancel) << "the provider cannot be interrupted";
      EXPECT_FALSE(pages_->CancelButtonClick());
    };
  pages_->NextFinishButtonClick();
  EXPECT_EQ(shown["SccOpenProject"], "Opening the project...");
  EXPECT_EQ(shown["SccGet"], "Fetching the project's files...");
  EXPECT_EQ(shown["Fetching: 1 "], "Fetching: 1 of 3 - unit1.pas") << "the host's own units are not counted";
  EXPECT_EQ(shown["SccQueryInfo"], "Checking what was fetched...");
  EXPECT_EQ(pages_->Progress(), "");
}

TEST_F(PullProject, RefusesAnUnusableTargetWithAReason) {
  const auto file = folder_.Write("file", "x");
  const auto start = folder_.Path() + PathDelim;
  const auto longest = start + std::string(260 - start.size(), 'x');
  Aim(longest);
  EXPECT_EQ(Page().Panel, 2) << "fits";
  EXPECT_EQ(provider_->Last("SccGetProjPath").LocalPath, longest) << "whole";
  Aim(longest + "x");
  EXPECT_THAT(Page().Problem, HasSubstr(longest + "x is longer than"));
  provider_->Calls.clear();
  for (const auto& target : {std::string(" "), file, longest + "x"}) {
    SCOPED_TRACE(target);
    Aim(target);
    EXPECT_EQ(Page().Panel, 3);
    EXPECT_NE(Page().Problem, "");
    EXPECT_EQ(provider_->Count("SccGetProjPath"), 0);
  }
  Aim("work/../new");
  EXPECT_EQ(pages_->TargetDirectory(), folder_ / "new") << "seen from the start-up directory";
  pages_->TargetDirectoryChange("work/deep/er");
  EXPECT_THAT(pages_->TargetNote(), HasSubstr(folder_ / "work")) << "has a mapping file";
  Aim(file + "/below");
  pages_->NextFinishButtonClick();
  EXPECT_THAT(pages_->Status(), ElementsAre(HasSubstr("could not be created"), "Done"));
}

TEST_F(PullProject, ProviderMayRedirectTheTarget) {
  auto path = ScriptedProviderLibrary::Path();
  std::ranges::transform(path, path.begin(),
                         [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
  WriteValue("software\\Mirelda\\MSIntegration3", kServerPath, path);
  provider_->GetProjPath.LocalPath = Target();
  Aim(folder_ / "elsewhere");
  EXPECT_TRUE(provider_->Last("SccGetProjPath").Allowed);
  EXPECT_EQ(pages_->TargetDirectory(), Target());
  pages_->NextFinishButtonClick();
  EXPECT_EQ(provider_->Last("SccOpenProject").LocalPath, Target());
  EXPECT_TRUE(pages_->CanOpen());
}

}  // namespace kestrel::addin
