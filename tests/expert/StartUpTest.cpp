// The expert's start, end, and its window for messages.
#include "expert/ExpertFixture.h"

namespace kestrel::addin {

class StartUp : public TExpertTest {};

TEST_F(StartUp, InstallsMenuAndNotifierAndTakesThemAway) {
  Start();
  EXPECT_EQ(host_.Menus.size(), 1U);
  EXPECT_EQ(host_.Notifiers.size(), 1U);
  EXPECT_THAT(forms_.Lines,
              ElementsAre(std::pair(mwtInfo, "SccExpert; Quillon 7 Source Code Control Interface"),
                          std::pair(mwtInfo, "Provider: Scripted")));
  EXPECT_EQ(provider_->Count("SccInitialize"), 0) << "no provider at start-up";
  expert_.reset();
  EXPECT_THAT(host_.Menus, IsEmpty());
  EXPECT_THAT(host_.Actions, IsEmpty());
  EXPECT_THAT(host_.Notifiers, IsEmpty());
}

TEST_F(StartUp, ReportsMissingServices) {
  host_.HasServices = false;
  auto& expert = Start();
  EXPECT_THAT(forms_.PlainBoxes, ElementsAre("Expert create error: Unable to get IDE services"));
  EXPECT_EQ(expert.Menu(), nullptr);
  EXPECT_EQ(expert.ProviderName(), kScripted) << "what came before the failure was set";
}

TEST_F(StartUp, MessagesComeErrorFirst) {
  auto& expert = Start();
  expert.DisplayMessages("Title", {"line", "info", "error"});
  EXPECT_THAT(forms_.Boxes,
              ElementsAre(TShownBox{"Title", "error", metError}, TShownBox{"Title", "line", metWarning},
                          TShownBox{"Title", "info", metWarning}));
  EXPECT_EQ(forms_.Lines.back(), std::pair(mwtInfo, std::string("line")));
  forms_.Boxes.clear();
  expert.DisplayMessages("Title", {});
  EXPECT_THAT(forms_.Boxes, IsEmpty());
}

}  // namespace kestrel::addin
