#include <gtest/gtest.h>

#include "commands/Comments.h"
#include "commands/WxExpertUi.h"
#include "support/ModalScript.h"
#include "toolkit/WxText.h"
#include "ui/MsgDialog.h"
#include "ui/MsgWin.h"

namespace kestrel::addin {

namespace {

struct TForms final : TWxExpertUi {
  void ShowCommitBrowser(TCommandContext&) override {}
  void ShowPlaceProject(TCommandContext&) override {}
  std::string ShowPullProject(TCommandContext&) override { return {}; }
};

TEST(ExpertForms, BringUpTheRealWindows) {
  TForms forms;
  const auto window = forms.CreateMessageWindow();
  EXPECT_EQ(window.get(), MsgWinForm);
  EXPECT_FALSE(MsgWinForm->IsShown());

  TModalScript script;
  script.Expect<TMsgDialogForm>([](TMsgDialogForm& form) { Click(form.btnOK); });
  forms.ShowMsgDialog("Add File", "text", metError);
  script.Expect<wxMessageDialog>([](wxMessageDialog& box) {
    EXPECT_EQ(box.GetMessage(), "no host");
    box.SetReturnCode(wxID_OK);
  });
  forms.ShowBox("no host", metWarning);
  script.Expect<TCommentsForm>([](TCommentsForm& form) { Click(form.btnCancel); });
  TCommentModel comment;
  EXPECT_EQ(forms.ShowComments(comment), mrCancel);
  EXPECT_EQ(CommentsForm, nullptr);
}

}  // namespace

}  // namespace kestrel::addin
