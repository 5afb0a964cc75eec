// The history window, through SccHistory of the loaded library.
#include <wx/listctrl.h>

#include "Developer.h"
#include "WindowControls.h"

namespace kestrel::svnscc {

namespace {

struct HistoryWindow : TTeam {
  HistoryWindow() {
    ann.Write("unit1.pas", "1\n");
    ann.Add({"unit1.pas"}, "first");
    ann.EditAndCheckIn("unit1.pas", "2\n", "second\nin detail");
  }
  scc::Long Show(const std::string& name) {
    const std::string file = ann.File(name);
    const char* names[] = {file.c_str()};
    return ann.Library()->SccHistory(ann.Context(), nullptr, 1, names, 0, nullptr);
  }
  static void Choose(wxDialog& dialog, long row) {
    auto* list = Find<wxListCtrl>(dialog, "revisions");
    list->SetItemState(list->GetNextItem(-1, wxLIST_NEXT_ALL, wxLIST_STATE_SELECTED), 0,
                       wxLIST_STATE_SELECTED);
    list->SetItemState(row, wxLIST_STATE_SELECTED, wxLIST_STATE_SELECTED);
  }
  TModalScript script;
};

}  // namespace

TEST_F(HistoryWindow, ShowsRevisionsTheirTextsAndDifferences) {
  script.Expect<wxDialog>([&](wxDialog& dialog) {
    auto* list = Find<wxListCtrl>(dialog, "revisions");
    EXPECT_EQ(2, list->GetItemCount());
    EXPECT_EQ("3", list->GetItemText(0, 0));
    EXPECT_EQ("ann", list->GetItemText(0, 2));
    EXPECT_EQ(wxString::FromUTF8("second …"), list->GetItemText(0, 3));
    EXPECT_EQ("second\nin detail", Find<wxTextCtrl>(dialog, "comment")->GetValue());
    EXPECT_FALSE(FindLabelled<wxButton>(dialog, "&More")->IsEnabled());
    script.Expect<wxDialog>([](wxDialog& difference) {
      EXPECT_EQ("1", TextIn(difference, "left"));
      EXPECT_EQ("2", TextIn(difference, "right"));
    });
    Press(dialog, "Compare with &Previous");
    Choose(dialog, 1);
    EXPECT_EQ("first", Find<wxTextCtrl>(dialog, "comment")->GetValue());
    EXPECT_FALSE(FindLabelled<wxButton>(dialog, "Compare with &Previous")->IsEnabled());
    script.Expect<wxDialog>([](wxDialog& text) { EXPECT_EQ("1\n", TextIn(text, "text")); });
    Press(dialog, "&Show Text");
    script.Expect<wxDialog>([](wxDialog& difference) { EXPECT_EQ("2", TextIn(difference, "right")); });
    Press(dialog, "Compare with &Local");
  });
  EXPECT_EQ(scc::SCC_OK, Show("unit1.pas"));
}

TEST_F(HistoryWindow, FoldersHaveAHistoryToo) {
  script.Expect<wxDialog>([&](wxDialog& dialog) {
    EXPECT_EQ(3, Find<wxListCtrl>(dialog, "revisions")->GetItemCount());
    EXPECT_FALSE(FindLabelled<wxButton>(dialog, "&Get This Revision...")->IsShown());
  });
  EXPECT_EQ(scc::SCC_OK, Show(""));
  EXPECT_EQ(scc::SCC_E_FILENOTCONTROLLED, Show("new.pas"));
}

}  // namespace kestrel::svnscc
