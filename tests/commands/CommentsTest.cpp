#include "commands/Comments.h"
#include "support/ModalScript.h"
#include "support/Testing.h"
#include "toolkit/WxText.h"

namespace kestrel::addin {

namespace {

using User = std::function<void(TCommentsForm&)>;

/// Types at the caret, as the keyboard and the clipboard do.
void Type(TCommentsForm& form, const std::string& text) {
  form.CommentsMemo->WriteText(ToWx(text));
  wxYield();
}

TEST(Comments, AreCutToTheProvidersLimitAndKeepTheCaret) {
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

TEST(Comments, ReturnWhatTheUserPressed) {
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
      {"Escape after typing", mrCancel, "new",
       [](auto& form) {
         Type(form, "new");
         Preview(form.CommentsMemo, WXK_ESCAPE);
       }},
      {"Return in the memo", mrOk, "old", [](auto& form) { Preview(form.CommentsMemo, WXK_RETURN); }},
      {"Return on the box", mrOk, "old", [](auto& form) { Preview(form.cbApplyToAll, WXK_NUMPAD_ENTER); }},
      {"Escape on a button", mrCancel, "old", [](auto& form) { Preview(form.btnCancel, WXK_ESCAPE); }},
      {"close button", mrCancel, "old", [](auto& form) { form.Close(); }},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.Case);
    TCommentModel model;
    model.Text = "old";  // what is typed replaces it
    TCommentsForm form(model);
    EXPECT_EQ(ShowAndPlay(form, row.Act), row.Result);
    EXPECT_EQ(model.Text, row.Text);
  }
}

TEST(Comments, OfferEarlierComments) {
  TCommentModel model;
  model.Text = "offered";
  model.Recent = {"offered", "save & load", "older"};
  TCommentsForm form(model);
  const auto result = ShowAndPlay<TCommentsForm>(form, [](TCommentsForm& shown) {
    const auto memo = [&] { return FromWx(shown.CommentsMemo->GetValue()); };
    const auto walk = [&](int key) {
      Preview(shown.CommentsMemo, key, wxMOD_CONTROL);
      return memo();
    };
    const auto labels = [&] {
      shown.FillRecentMenu();
      std::vector<std::string> texts;
      for (const auto* item : shown.RecentMenu.GetMenuItems()) texts.push_back(FromWx(item->GetItemLabel()));
      return texts;
    };
    Type(shown, "typed");
    EXPECT_EQ(walk(WXK_UP), "offered");
    EXPECT_THAT(labels(), ElementsAre("&1 offered", "&2 save && load", "&3 older", "", "typed"));
    EXPECT_EQ(walk(WXK_DOWN), "typed");
    wxCommandEvent choice(wxEVT_MENU, shown.RecentMenu.FindItemByPosition(2)->GetId());
    shown.RecentMenu.ProcessEvent(choice);
    EXPECT_EQ(memo(), "older");
    EXPECT_EQ(wxWindow::FindFocus(), shown.CommentsMemo);
    Click(shown.btnOK);
  });
  EXPECT_EQ(result, mrOk);
}

TEST(CommentHistory, LosesNothingThatWasTyped) {
  TCommentHistory same({"same", "other"}, "same");
  EXPECT_EQ(same.Older(), "other") << "does not stop at the one that is shown";
  EXPECT_EQ(same.Newer(), "same");
  TCommentHistory history({"b", "a"}, "forgotten long ago");
  EXPECT_THAT(history.Entries(), ElementsAre("forgotten long ago", "b", "a", "forgotten long ago"));
  history.Record("draft");
  EXPECT_EQ(history.Older(), "b");
  history.Record("b, changed");
  EXPECT_THAT(history.Entries(), ElementsAre("draft", "b, changed", "b", "a", "forgotten long ago"));
  EXPECT_EQ(history.Older(), "b");
  history.Record(" ");  // cleared: nothing to keep
  EXPECT_EQ(history.Newer(), "b, changed");
  history.Record("b, changed");
  EXPECT_EQ(history.Newer(), "draft");
  EXPECT_EQ(history.Newer(), std::nullopt);
  EXPECT_EQ(history.Choose(4), "forgotten long ago");
  EXPECT_EQ(history.Older(), std::nullopt);
  EXPECT_EQ(history.Entries().size(), 5u);
}

}  // namespace

}  // namespace kestrel::addin
