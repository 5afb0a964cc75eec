// What the expert does around its wizards.
#include "expert/ExpertFixture.h"

namespace kestrel::addin {

class Wizards : public TExpertTest {};

TEST_F(Wizards, PullingHasTheProviderToItselfAndTheOpenProjectComesBack) {
  Open();
  ASSERT_TRUE(provider_->Open);
  forms_.OnPullProject.push_back([&](TCommandContext& context) {
    EXPECT_FALSE(provider_->Open);
    EXPECT_EQ(context.Provider.List(), nullptr);
    context.Provider.Select("Another");
    return mrCancel;
  });
  expert_->Execute();
  EXPECT_TRUE(provider_->Open);
  EXPECT_EQ(provider_->Last("SccOpenProject").LocalPath, folder_ / "work");
  EXPECT_EQ(expert_->ProviderName(), kScripted);
}

TEST_F(Wizards, PulledProjectIsOpenedInTheHost) {
  Start();
  forms_.PulledProject = project_file_;
  const auto pulled = [](TCommandContext&) { return mrOk; };
  forms_.OnPullProject.assign(2, pulled);
  expert_->Execute();
  forms_.PulledProject = At("All.qvxgroup");
  expert_->Execute();
  EXPECT_THAT(host_.Log, ElementsAre("OpenProject " + project_file_, "OpenFile " + At("All.qvxgroup")));
}

TEST_F(Wizards, PlacedProjectStaysOpenAndAnAbandonedOneDoesNot) {
  Start();
  EXPECT_EQ(AbortOf([&] { expert_->PlaceProject(); }), "No project or package file found in current project");
  host_.AddProject(project_file_, units_);
  const auto open = [&](TCommandContext& context) {
    context.Provider.Select(kScripted);
    context.Provider.Create(0);
    context.Provider.List()->Add(folder_ / "work");
    TStateMessages messages;
    context.Provider.SelectProject(folder_ / "work", "").OpenProject(messages);
    return mrOk;
  };
  forms_.OnPlaceProject.push_back([&](TCommandContext& context) {
    open(context);
    context.Provider.SetOpenProjectFile(project_file_);
    return mrOk;
  });
  expert_->PlaceProject();
  EXPECT_THAT(host_.Log, ElementsAre("SaveAll"));
  EXPECT_TRUE(provider_->Open);

  forms_.OnPlaceProject.push_back(open);
  expert_->PlaceProject();
  EXPECT_EQ(expert_->ProviderList(), nullptr) << "the window that its dialogs belonged to is gone";
}

}  // namespace kestrel::addin
