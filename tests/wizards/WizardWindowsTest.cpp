// The wizards' windows: what they show of their pages, and their keyboard.
#include <wx/wx.h>

#include "expert/ExpertFixture.h"
#include "support/ModalScript.h"
#include "toolkit/WxText.h"
#include "wizards/PlaceProjectWizard.h"
#include "wizards/PullProjectWizard.h"

namespace kestrel::addin {

namespace {

class WizardWindows : public TExpertTest {
 protected:
  WizardWindows() {
    std::filesystem::remove(At("App.cdp"));
    provider_->GetProjPath = {{}, "trunk/App", {}, "repo"};
    Start();
  }
  static std::vector<wxPanel*> Shown(const TWizardForm& form) {
    std::vector<wxPanel*> shown;
    for (auto* panel : {form.Page1Panel, form.Page2Panel, form.Page3Panel, form.Page4Panel})
      if (panel->IsShown()) shown.push_back(panel);
    return shown;
  }
  static std::string Line(const TLinesView& list, long row) { return FromWx(list.GetItemText(row)); }
};

TEST_F(WizardWindows, PlaceIsWorkedByKeyboard) {
  host_.AddProject(project_file_, units_);
  TPlaceProjectWizard form(expert_->Context());
  const int result = ShowAndPlay<TPlaceProjectWizard>(form, [](TPlaceProjectWizard& wizard) {
    EXPECT_EQ(wizard.GetTitle(), "Place project Wizard: Step 1 of 3");
    EXPECT_THAT(Shown(wizard), ElementsAre(wizard.Page1Panel));
    EXPECT_EQ(wizard.cbProviders->GetStringSelection(), "Scripted");
    EXPECT_FALSE(wizard.NoProvidersLabel->IsShown());
    EXPECT_FALSE(wizard.BackButton->IsEnabled());
    Preview(wizard.cbProviders, WXK_RETURN);
    EXPECT_THAT(Shown(wizard), ElementsAre(wizard.Page2Panel));
    EXPECT_EQ(wizard.ProjectName->GetValue(), "trunk/App");
    wizard.ProjectName->SetValue("");
    EXPECT_FALSE(wizard.NextFinishButton->IsEnabled());
    wizard.ProjectName->SetValue("trunk/Other");
    Preview(wizard.ProjectName, WXK_RETURN);
    EXPECT_THAT(Shown(wizard), ElementsAre(wizard.Page3Panel));
    auto& files = *wizard.FileSelectCheckListBox;
    ASSERT_EQ(files.GetItemCount(), 4);
    EXPECT_EQ(Line(files, 0), "unit1.pas");
    Preview(&files, 'A', wxMOD_CONTROL);
    Preview(&files, WXK_SPACE);
    files.CheckItem(1, true);  // the only one, as its line in the status shows
    Preview(&files, WXK_RETURN);
    EXPECT_EQ(wizard.GetTitle(), "Place project Wizard: Status page");
    EXPECT_EQ(wizard.NextFinishButton->GetLabel(), "&Close");
    EXPECT_FALSE(wizard.CancelButton->IsEnabled());
    ASSERT_EQ(wizard.lbStatus->GetItemCount(), 3);
    EXPECT_EQ(Line(*wizard.lbStatus, 1), "Add unit2.pas: ok");
    Click(wizard.NextFinishButton);
  });
  EXPECT_EQ(result, mrOk);
  EXPECT_THAT(Mapping(), HasSubstr("ProjName=trunk/Other"));
}

TEST_F(WizardWindows, EscapeStopsThePlacementAndDoesNotCloseTheForm) {
  host_.AddProject(project_file_, units_);
  TPlaceProjectWizard form(expert_->Context());
  ShowAndPlay<TPlaceProjectWizard>(form, [&](TPlaceProjectWizard& wizard) {
    for (int page = 0; page < 2; ++page) Click(wizard.NextFinishButton);
    provider_->OnCall["SccAdd"] = [&](const ScriptedCall&) {
      EXPECT_TRUE(wizard.CancelButton->IsEnabled());
      Preview(wizard.lbStatus, WXK_RETURN);
      Preview(wizard.lbStatus, WXK_F1);
      Preview(wizard.lbStatus, WXK_ESCAPE);
    };
    Click(wizard.NextFinishButton);
    EXPECT_TRUE(wizard.IsModal());
    EXPECT_EQ(provider_->Count("SccAdd"), 1);
    EXPECT_FALSE(wizard.CancelButton->IsEnabled());
    EXPECT_EQ(wxWindow::FindFocus(), wizard.NextFinishButton);
    Click(wizard.NextFinishButton);
  });
  EXPECT_THAT(host_.Log, Not(Contains("HelpKeyword HC_TeamPlaceProject"))) << "not in the middle of it";
}

}  // namespace

}  // namespace kestrel::addin
