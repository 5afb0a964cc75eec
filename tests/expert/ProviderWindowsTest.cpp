// Differences, history, properties, the provider's application; reloading what they changed.
#include "expert/ExpertFixture.h"

namespace kestrel::addin {

using namespace scc;

class ProviderWindows : public TExpertTest {};

TEST_F(ProviderWindows, SaveFirstAndAreNotShownWhenThatFails) {
  auto& expert = Open();
  host_.AddUnit(units_[0]).Editors.front().Modified = true;
  const std::pair<void (TSccExpert::*)(const std::string&), const char*> windows[] = {
      {&TSccExpert::ShowDiff, "SccDiff"},
      {&TSccExpert::ShowHistory, "SccHistory"},
      {&TSccExpert::Properties, "SccProperties"}};
  provider_->Results["SccHistory"] = SCC_I_RELOADFILE;
  for (const auto& [show, entry] : windows) {
    SCOPED_TRACE(entry);
    host_.Log.clear();
    host_.Unsavable.clear();
    (expert.*show)(units_[0]);
    EXPECT_EQ(host_.Log.front(), "SaveFile " + units_[0]);
    EXPECT_EQ(host_.Log.back() == "ReloadFile " + units_[0], show == &TSccExpert::ShowHistory);
    host_.Log.clear();
    host_.Unsavable = units_[0];
    EXPECT_EQ(AbortOf([&, command = show] { (expert.*command)(units_[0]); }),
              units_[0] + " has unsaved changes and could not be saved. Nothing was done with it.");
    EXPECT_EQ(provider_->Count(entry), 1);
    EXPECT_THAT(host_.Log, ElementsAre("SaveFile " + units_[0]));
  }
  EXPECT_EQ(provider_->Last("SccDiff").Flags, 2);
  EXPECT_EQ(forms_.Boxes.back().Title, "Show History");
  provider_->Results.clear();
  host_.Unsavable.clear();
  expert.ShowHistory(units_[0]);
  EXPECT_NE(host_.Log.back(), "ReloadFile " + units_[0]) << "only when the provider says so";
}

TEST_F(ProviderWindows, ApplicationRunsInATemporaryProjectWithoutOne) {
  auto& expert = Start();
  provider_->Results["SccRunScc"] = SCC_E_SHELLFAILURE;
  expert.RunSccApp();
  EXPECT_EQ(provider_->Count("SccRunScc"), 1);
  EXPECT_EQ(expert.ProviderList()->GetCount(), 0);
  EXPECT_EQ(expert.ProviderList()->CurrentProject(), nullptr);
  EXPECT_THAT(forms_.Boxes, IsEmpty()) << "it says itself what went wrong";
}

TEST_F(ProviderWindows, ReloadingAProjectFileReopensTheGroupOrTheProject) {
  auto& expert = Open();
  host_.AddUnit(units_[0]);
  expert.ReloadFiles({units_[0], At("APP.QVXPROJ"), At("notopen.pas")});
  EXPECT_THAT(host_.Log, ElementsAre("CloseAll", "OpenProject " + project_file_));
  host_.Log.clear();
  expert.ReloadFile(At("APP.QVXPROJ"));
  EXPECT_THAT(host_.Log, ElementsAre("CloseAll", "OpenProject " + project_file_));
  host_.Log.clear();

  const auto group = folder_.Write("work/All.qvxgroup", "");
  host_.AddGroup(group, nullptr);
  expert.ReloadFile(project_file_);
  EXPECT_THAT(host_.Log, ElementsAre("CloseAll", "OpenFile " + group));
  host_.Log.clear();

  host_.AddProject(At("Other.qvxproj"), {});
  host_.CloseModule(project_file_);
  host_.CloseModule(group);
  host_.AddProject(project_file_, units_);
  expert.ReloadFiles({At("Other.qvxproj"), units_[0], At("notopen.pas")});
  EXPECT_THAT(host_.Log, ElementsAre("ReloadFile " + units_[0]));
}

}  // namespace kestrel::addin
