#include <gtest/gtest.h>

#include "commands/Comments.h"
#include "support/ModalScript.h"
#include "ui/WxText.h"

namespace {

using User = std::function<void(TCommentsForm&)>;

/// Types at the caret, as the keyboard and the clipboard do.
void Type(TCommentsForm& form, const std::string& text) {
  form.CommentsMemo->WriteText(ToWx(text));
  wxYield();
}

TEST(Comments, TakeWhatAProviderTakesAndKeepTheCaret) {
  TCommentModel model;
  TCommentsForm form(model);
  const int result = ShowAndPlay<TCommentsForm>(form, [](TCommentsForm& shown) {
    EXPECT_EQ(wxWindow::FindFocus(), shown.CommentsMemo);
    Type(shown, std::string(127, 'x'));
    Type(shown, "ä");
    EXPECT_EQ(FromWx(shown.CommentsMemo->GetValue()), std::string(127, 'x')) << "half a character is none";
    shown.CommentsMemo->SetInsertionPoint(3);
    Type(shown, "yz");
    EXPECT_EQ(shown.CommentsMemo->GetInsertionPoint(), 4);
    Click(shown.btnOK);
  });
  EXPECT_EQ(result, mrOk);
  EXPECT_EQ(model.Text, "xxxy" + std::string(124, 'x'));
}

TEST(Comments, EndAsTheUserEndsThem) {
  const struct {
    const char* Case;
    int Result;
    const char* Text;
    User Act;
  } rows[] = {
      {"OK right after pasting lines", mrOk, "one two",
       [](auto& form) {
         form.CommentsMemo->WriteText("one\ntwo");
         Click(form.btnOK);
       }},
      {"Return in the memo", mrOk, "old", [](auto& form) { Preview(form.CommentsMemo, WXK_RETURN); }},
      {"Return on the box", mrOk, "old", [](auto& form) { Preview(form.cbApplyToAll, WXK_NUMPAD_ENTER); }},
      {"Escape in the memo", mrCancel, "old", [](auto& form) { Preview(form.CommentsMemo, WXK_ESCAPE); }},
      {"Escape on a button", mrCancel, "old", [](auto& form) { Preview(form.btnCancel, WXK_ESCAPE); }},
      {"Cancel", mrCancel, "old", [](auto& form) { Click(form.btnCancel); }},
      {"close button", mrCancel, "old", [](auto& form) { form.Close(); }},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.Case);
    TCommentModel model;
    model.Text = row.Result == mrOk && row.Text != std::string("old") ? "" : "old";
    TCommentsForm form(model);
    EXPECT_EQ(ShowAndPlay(form, row.Act), row.Result);
    EXPECT_EQ(model.Text, row.Text);
  }
}

TEST(Comments, TheBoxIsShownOnlyWhereItMeansSomething) {
  TCommentModel model;
  EXPECT_FALSE(TCommentsForm(model).cbApplyToAll->IsShown());
  model.ShowApplyToAll = true;
  model.Caption = "Comments for größe.pas";
  TCommentsForm form(model);
  EXPECT_EQ(FromWx(form.GetTitle()), model.Caption);
  ShowAndPlay<TCommentsForm>(form, [](TCommentsForm& shown) {
    EXPECT_TRUE(shown.cbApplyToAll->IsShown());
    EXPECT_TRUE(shown.cbApplyToAll->GetValue());
    shown.cbApplyToAll->SetValue(false);
    Click(shown.btnOK);
  });
  EXPECT_FALSE(model.ApplyToAll);
}

}  // namespace
