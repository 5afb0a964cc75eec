// The wizards' windows: what they show of their pages, and their keyboard.
#include <wx/wx.h>

#include "expert/ExpertFixture.h"
#include "support/ModalScript.h"
#include "toolkit/WxText.h"
#include "wizards/PlaceProjectWizard.h"
#include "wizards/PullProjectWizard.h"

namespace kestrel::addin {

class WizardWindows : public TExpertTest {
 protected:
  WizardWindows() {
    fs::remove(At("App.cdp"));
    provider_->GetProjPath = {{}, "trunk/App", {}, "repo"};
    Start();
  }
};

TEST_F(WizardWindows, AreWorkedByKeyboardAndEscapeStopsThePlacement) {
  host_.AddProject(project_file_, units_);
  TPlaceProjectWizard form(expert_->Context());
  ShowAndPlay<TPlaceProjectWizard>(form, [&](TPlaceProjectWizard& wizard) {
    Preview(wizard.cbProviders, WXK_RETURN);
    wizard.ProjectName->SetValue("");
    EXPECT_FALSE(wizard.NextFinishButton->IsEnabled());
    wizard.ProjectName->SetValue("trunk/Other");
    Preview(wizard.ProjectName, WXK_RETURN);
    auto& files = *wizard.FileSelectCheckListBox;
    Preview(&files, 'A', wxMOD_CONTROL);
    Preview(&files, WXK_SPACE);
    files.CheckItem(1, true);
    files.CheckItem(2, true);
    provider_->OnCall["SccAdd"] = [&](const ScriptedCall&) {
      EXPECT_TRUE(wizard.CancelButton->IsEnabled());
      Preview(wizard.lbStatus, WXK_RETURN);
      Preview(wizard.lbStatus, WXK_F1);
      Preview(wizard.lbStatus, WXK_ESCAPE);
    };
    Preview(&files, WXK_RETURN);
    EXPECT_TRUE(wizard.IsModal());
    EXPECT_THAT(GivenTo("SccAdd"), ElementsAre(units_[1])) << "the first that is ticked";
    EXPECT_FALSE(wizard.CancelButton->IsEnabled());
    EXPECT_EQ(wxWindow::FindFocus(), wizard.NextFinishButton);
    Click(wizard.NextFinishButton);
  });
  EXPECT_THAT(Mapping(), HasSubstr("ProjName=trunk/Other"));
  EXPECT_THAT(host_.Log, Not(Contains("HelpKeyword HC_TeamPlaceProject"))) << "not in the middle of it";
}

}  // namespace kestrel::addin
