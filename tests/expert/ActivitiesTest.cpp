// What may start while something else of the add-in's is running.
#include <thread>

#include "expert/ExpertFixture.h"

namespace kestrel::addin {

using enum TActivities::TVerdict;
using enum TOTAFileNotification;

const std::string kBusy = "Another source control command is still running";

TEST(Activities, ChecksWhatMayStartWhileSomethingRuns) {
  bool inCall = false;
  TActivities activities([&] { return inCall; });
  const auto expect = [&](TActivities::TVerdict ofUser, TActivities::TVerdict ofHost) {
    for (const auto wanted : {TActivity::Command, TActivity::MenuOpening, TActivity::ProviderChoice})
      EXPECT_EQ(activities.Check(wanted), ofUser);
    EXPECT_EQ(activities.Check(TActivity::Notification), ofHost);
  };
  expect(Start, Start);
  activities.Run(TActivity::Command, [&] {
    expect(Refuse, Start);
    inCall = true;
    expect(Refuse, Wait);
    inCall = false;
    const TActivities::TScope handling(activities, TActivity::Notification);
    expect(Refuse, Wait);
  });
  for (const auto running : {TActivity::MenuOpening, TActivity::ProviderChoice})
    activities.Run(running, [&] { expect(Refuse, Wait); });
  inCall = true;
  expect(Refuse, Wait);
}

TEST(Activities, RunsWaitingNotificationsInOrderAlsoAfterAFailure) {
  TActivities activities([] { return false; });
  std::vector<int> order;
  const auto notify = [&](int number) { activities.Notify([&, number] { order.push_back(number); }); };
  const auto failing = [&] {
    activities.Notify([&] {
      notify(3);
      order.push_back(1);
    });
    notify(2);
    EXPECT_THAT(order, IsEmpty());
    throw std::runtime_error("it failed");
  };
  EXPECT_THROW(activities.Run(TActivity::MenuOpening, failing), std::runtime_error);
  EXPECT_THAT(order, ElementsAre(1, 2, 3));
}

class Reentrance : public TExpertTest {};

TEST_F(Reentrance, AProviderCallHasTheProviderToItself) {
  auto& expert = Open();
  provider_->OnCall["SccDiff"] = [&](const ScriptedCall&) {  // its window pumps the host's messages
    host_.Notify(fnFileClosing, project_file_);
    expert.Menu()->actCheckInFiles.OnExecute();
    expert.Menu()->Map.OnClick();
    expert.ViewChange(units_[0]);
    EXPECT_EQ(AbortOf([&] { expert.ChooseProvider(kScripted, "carl"); }), kBusy);
    EXPECT_EQ(AbortOf([&] { expert.Context().Provider.Release(); }),
              "The source code control provider is still busy with another call");
    EXPECT_TRUE(provider_->Open);
  };
  provider_->Calls.clear();
  expert.RunCommand("%s", [&] { expert.ShowDiff(units_[0]); });
  EXPECT_THAT(provider_->Entries(), ElementsAre("SccDiff", "SccCloseProject", "SccUninitialize"));
  EXPECT_THAT(forms_.LinesOf(mwtInfo), IsSupersetOf({"CheckFilesInClick; " + kBusy, "MainMenu; " + kBusy}));
}

TEST_F(Reentrance, NotificationsDuringTheChoiceOfAProviderAreHandledAfterwards) {
  auto& expert = Start();
  provider_->OnCall["SccInitialize"] = [&](const ScriptedCall&) {
    if (host_.FindModule(project_file_)) return;
    host_.AddProject(project_file_, units_);
    host_.Notify(fnFileOpened, project_file_);
  };
  expert.ChooseProvider(kScripted, "carl");
  EXPECT_EQ(provider_->Last("SccOpenProject").User, "ann");
  EXPECT_TRUE(provider_->Open);
}

TEST_F(Reentrance, CommandsAreRefusedWhileAnotherOrANotificationShowsABox) {
  provider_->Results["SccOpenProject"] = scc::SCC_E_ACCESSFAILURE;
  forms_.WhileBoxShown = [&] { expert_->Menu()->actPullProject.OnExecute(); };
  auto& expert = Open();
  EXPECT_THAT(forms_.LinesOf(mwtInfo), Contains(HasSubstr(kBusy)));
  provider_->Results.clear();
  host_.Notify(fnFileOpened, project_file_);
  forms_.OnFileList.push_back([&](TFileListModel&) {
    expert.Menu()->actCheckInFiles.OnExecute();
    return mrCancel;
  });
  expert.Menu()->actCheckOutFiles.OnExecute();
  EXPECT_THAT(forms_.LinesOf(mwtInfo), Contains("CheckFilesInClick; " + kBusy));
}

TEST_F(Reentrance, LinesOfAProvidersThreadsReachTheMessageWindow) {
  Open();
  const auto before = forms_.Lines.size();
  std::jthread([&] {
    for (const scc::Dword kind : {scc::SCC_MSG_INFO, scc::SCC_MSG_WARNING, scc::SCC_MSG_ERROR})
      provider_->TextOut("from afar", kind);
  }).join();
  EXPECT_EQ(forms_.Lines.size(), before);
  ASSERT_EQ(forms_.Soon.size(), 1U);
  forms_.Soon.front()();
  for (const auto kind : {mwtInfo, mwtWarning, mwtError})
    EXPECT_THAT(forms_.LinesOf(kind), Contains("from afar"));
}

}  // namespace kestrel::addin
