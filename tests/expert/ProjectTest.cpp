// Opening, switching and closing projects.
#include "expert/ExpertFixture.h"

namespace kestrel::addin {

using namespace scc;
using enum TOTAFileNotification;

class Project : public TExpertTest {};

TEST_F(Project, OpensTheProviderProjectThatItsMappingNames) {
  provider_->OpenProject.User = "ann.settled";
  Open();
  const auto& call = provider_->Last("SccOpenProject");
  EXPECT_EQ(call.ProjName, "trunk/App");
  EXPECT_EQ(call.AuxPath, "repo");
  EXPECT_EQ(call.User, "ann");
  EXPECT_EQ(call.LocalPath, folder_ / "work");
  EXPECT_THAT(Mapping(), HasSubstr("UserName=ann.settled"));
}

TEST_F(Project, OtherFilesAndUnmappedProjectsLoadNoProvider) {
  auto& expert = Start();
  host_.AddProject(project_file_, units_);
  host_.Notify(fnFileOpened, units_[0]);
  host_.Notify(fnFileOpened, At("Group.qvxgroup"));
  host_.Notify(fnFileOpened, At("Other.qvxproj"));  // not the current project
  WriteMapping("[Another provider]\nProjName=x\n");
  host_.Notify(fnFileOpened, project_file_);
  EXPECT_EQ(provider_->Count("SccInitialize"), 0);
  EXPECT_TRUE(expert.ProjectNotMapped());
  fs::remove(At("App.cdp"));
  host_.Notify(fnFileOpened, project_file_);
  EXPECT_EQ(provider_->Count("SccInitialize"), 0);
}

TEST_F(Project, ClosingShowsTheMessagesAndDropsTheProvider) {
  auto& expert = Open();
  provider_->Results["SccCloseProject"] = SCC_E_ACCESSFAILURE;
  host_.Notify(fnFileClosing, project_file_);
  EXPECT_EQ(forms_.Boxes.back().Title, "CloseProject");
  EXPECT_EQ(provider_->Entries().back(), "SccUninitialize");
  EXPECT_EQ(expert.ProviderList(), nullptr);
}

TEST_F(Project, SwitchingClosesTheFirstBeforeItOpensTheSecond) {
  Open();
  const auto second = folder_.Write("other/B.qvxproj", "");
  folder_.Write("other/B.cdp", "[Scripted]\nProjName=trunk/B\n");
  host_.AddProject(second, {});  // becomes the current one before the host says so
  provider_->Calls.clear();
  host_.Notify(fnActiveProjectChanged, second);
  std::vector<std::string> order;
  for (const auto& entry : provider_->Entries())
    if (entry != "SccSetOption") order.push_back(entry);
  EXPECT_THAT(order, ElementsAre("SccCloseProject", "SccUninitialize", "SccInitialize", "SccOpenProject"));
  EXPECT_EQ(provider_->Last("SccOpenProject").ProjName, "trunk/B");
}

TEST_F(Project, RefusedOpenIsShownAndUndone) {
  const std::pair<Long, const char*> rows[] = {
      {SCC_E_INVALIDUSER, "Invalid username, unable to open provider project"},
      {SCC_I_PROJECTCREATED, "Unknown error, unable to open provider project"}};
  for (const auto& [code, text] : rows) {
    SCOPED_TRACE(text);
    const auto before = Mapping();
    provider_->Results["SccOpenProject"] = code;
    provider_->OpenProject.User = "somebody";
    forms_.WindowShown = true;
    auto& expert = Open();
    EXPECT_THAT(forms_.Boxes, Contains(TShownBox{"Open Project", text, metError}));
    EXPECT_FALSE(forms_.WindowShown);
    EXPECT_EQ(provider_->Entries().back(), "SccCloseProject");
    ASSERT_NE(expert.ProviderList(), nullptr);
    EXPECT_EQ(expert.ProviderList()->GetCount(), 0);
    EXPECT_EQ(Mapping(), before);
    EXPECT_FALSE(expert.Menu()->actCheckOutFiles.Enabled);
    host_.CloseModule(project_file_);
    expert_.reset();
  }
}

TEST_F(Project, ReasonOfAFailedOpenIsInTheMessageWindow) {
  provider_->Faults.ThrowException.insert("SccOpenProject");
  Open();  // counts as opened
  EXPECT_THAT(forms_.LinesOf(mwtError), Contains("scripted failure in SccOpenProject"));
}

TEST_F(Project, ClosedByTheHostWhileTheFailureIsShown) {
  // The boxes run a message loop; what the host says meanwhile is handled when the open has been undone.
  provider_->Results["SccOpenProject"] = SCC_E_ACCESSFAILURE;
  forms_.WhileBoxShown = [&] { host_.Notify(fnFileClosing, project_file_); };
  EXPECT_EQ(Open().ProviderList(), nullptr);
}

TEST_F(Project, MappedProviderThatIsNotInstalledIsReported) {
  WriteMapping("[Gone]\nProjName=x\n");
  Open();
  EXPECT_EQ(provider_->Count("SccInitialize"), 0);
  // The project's own provider wins over the user's only once the project counts as mapped.
  WriteMapping("[Gone]\nProjName=x\n[Scripted]\nProjName=y\n");
  host_.Notify(fnFileOpened, project_file_);
  EXPECT_THAT(forms_.LinesOf(mwtError), Contains("FileNotification; AProvider not assigned"));
}

}  // namespace kestrel::addin
