#include "support/ModalScript.h"
#include "support/Testing.h"
#include "toolkit/WxText.h"
#include "ui/MsgDialog.h"

namespace kestrel::addin {

using User = std::function<void(TMsgDialogForm&)>;

TEST(MsgDialog, ReturnsWhatTheUserPressed) {
  const struct {
    const char* Case;
    int Result;
    User Act;
  } rows[] = {
      {"OK", mrOk, [](auto& form) { Click(form.btnOK); }},
      {"Enter in the text", mrOk, [](auto& form) { Preview(form.MessageText, WXK_RETURN); }},
      {"Escape in the text", mrCancel, [](auto& form) { Preview(form.MessageText, WXK_ESCAPE); }},
      {"close button", mrCancel, [](auto& form) { form.Close(); }},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.Case);
    TMsgDialogForm form("Check Out File", "unit1.pas", metInfo);
    EXPECT_EQ(ShowAndPlay(form, row.Act), row.Result);
  }
}

TEST(MsgDialog, ShowsTitleAndTextReadOnlyWithTheFocusOnOk) {
  TMsgDialogForm form("Tom & Jerry", "line one\nübung\nlatin \xe4", metError);
  ShowAndPlay<TMsgDialogForm>(form, [](TMsgDialogForm& shown) {
    shown.Raise();
    EXPECT_EQ(FromWx(shown.GetTitle()), "Source Code Control");
    EXPECT_EQ(FromWx(shown.TitleLabel->GetLabelText()), "Tom & Jerry");
    EXPECT_EQ(FromWx(shown.MessageText->GetLineText(2)), "latin ä");
    EXPECT_FALSE(shown.MessageText->IsEditable());
    EXPECT_EQ(wxWindow::FindFocus(), shown.btnOK);
    shown.Close();
  });
}

TEST(MsgDialog, MakesRoomForALongTitle) {
  const std::string longWord = "C:\\one_word\\that_is_wider\\than_the_title_usually_is\\in_this_dialog";
  const auto longTitle =
      "A title of many words that needs more than two lines however small the letters are, and goes on, "
      "and " +
      longWord + " and on, until there is no doubt that the dialog must be higher than it usually is";
  const TMsgDialogForm normal("Check Out File", "", metInfo), high(longTitle, "", metInfo);
  EXPECT_EQ(normal.GetClientSize(), normal.FromDIP(wxSize(393, 182)));
  EXPECT_GE(normal.MessageText->GetSize().GetHeight(), normal.FromDIP(124));
  EXPECT_GT(high.GetClientSize().GetHeight(), normal.GetClientSize().GetHeight());
  EXPECT_LE(high.TitleLabel->GetRect().GetRight(), high.btnOK->GetRect().GetLeft());
  EXPECT_GE(high.TitleLabel->GetSize().GetWidth(), high.TitleLabel->GetTextExtent(ToWx(longWord)).GetWidth());
  EXPECT_LE(high.btnOK->GetRect().GetRight(), high.GetClientSize().GetWidth());
}

}  // namespace kestrel::addin
