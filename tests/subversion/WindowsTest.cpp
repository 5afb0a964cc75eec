// The provider's windows, through the loaded library: differences, history, repository browser, properties.
#include <wx/listctrl.h>
#include <wx/treectrl.h>

#include "Developer.h"
#include "WindowControls.h"

namespace kestrel::svnscc {

namespace {

struct Windows : TTeam {
  /// Lets the user act in the next window.
  void Expect(const std::function<void(wxDialog&)>& user) { script.Expect<wxDialog>(user); }
  TModalScript script;
};

struct DiffWindow : Windows {
  DiffWindow() {
    ann.AddNew({"unit1.pas"}, "one\ntwo\nthree\n");
    ann.AddNew({"picture.bin"}, std::string("a\0b", 3));
  }
  /// Shows the differences, and hands the window to `user`.
  Long Show(const std::string& name, Long flags, const std::function<void(wxDialog&)>& user) {
    script.Expect<wxDialog>(user);
    return ann.Diff(name, flags);
  }
};

struct HistoryWindow : Windows {
  HistoryWindow() {
    ann.Write("unit1.pas", "1\n");
    ann.Add({"unit1.pas"}, "first");
    ann.EditAndCheckIn("unit1.pas", "2\n", "second\nin detail");
  }
  Long Show(const std::string& name) { return ann.Run(ann.Library()->SccHistory, {name}, 0, nullptr); }
};

struct RepositoryWindows : Windows {
  RepositoryWindows() {
    ann.AddNew({"unit1.pas", "sub/Größe & more.pas"});
    ann.CheckOut({"unit1.pas"}, "for the tests");
  }
  static void Enter(wxDialog& dialog) {
    auto* list = Find<wxListCtrl>(dialog, "entries");
    wxListEvent event(wxEVT_LIST_ITEM_ACTIVATED, list->GetId());
    list->HandleWindowEvent(event);
  }
  static std::string Value(wxDialog& dialog, const char* name) {
    return Find<wxTextCtrl>(dialog, name)->GetValue().utf8_string();
  }
  Long Properties(const std::string& name) {
    return ann.Library()->SccProperties(ann.Context(), nullptr, ann.File(name).c_str());
  }
  /// The window of the file's properties shows that value.
  void ExpectProperty(const std::string& name, const char* label, const std::string& value) {
    Expect([=](wxDialog& dialog) { EXPECT_EQ(value, Value(dialog, label)); });
    EXPECT_EQ(SCC_OK, Properties(name));
  }
};

}  // namespace

TEST_F(DiffWindow, ShowsBothSidesAlignedAndComparesAnew) {
  ann.Edit("unit1.pas", "one\nTWO\n2\nthree\n4\n");
  EXPECT_EQ(SCC_I_FILEDIFFERS, Show("unit1.pas", 0, [](wxDialog& dialog) {
              EXPECT_EQ("one\ntwo\n\nthree\n", TextIn(dialog, "left"));
              EXPECT_EQ("one\nTWO\n2\nthree\n4", TextIn(dialog, "right"));
              EXPECT_EQ("Difference 1 of 2.", Message(dialog));
              EXPECT_FALSE(FindLabelled<wxButton>(dialog, "&Previous")->IsEnabled());
              Press(dialog, "&Next");
              EXPECT_EQ("Difference 2 of 2.", Message(dialog));
              EXPECT_EQ(4, Find<wxStyledTextCtrl>(dialog, "left")->GetCurrentLine());
              EXPECT_EQ("5 ", Find<wxStyledTextCtrl>(dialog, "right")->MarginGetText(4));
              Tick(dialog, "Ignore &case");
              EXPECT_EQ("one\ntwo\n\nthree\n", TextIn(dialog, "left"));
              EXPECT_EQ("Difference 1 of 2.", Message(dialog));
              EXPECT_EQ(2, Find<wxStyledTextCtrl>(dialog, "left")->GetCurrentLine());
            }));
  EXPECT_EQ("one\nTWO\n2\nthree\n4\n", ann.Read("unit1.pas"));
}

TEST_F(DiffWindow, ComparesAsTheClientAsks) {
  ann.Edit("unit1.pas", "ONE\nt w o\nthree\n");
  constexpr Long kBoth = SCC_DIFF_IGNORECASE | SCC_DIFF_IGNORESPACE;
  for (const Long flags : {Long{SCC_DIFF_IGNORECASE}, Long{SCC_DIFF_IGNORESPACE}, kBoth})
    EXPECT_EQ(flags == kBoth ? SCC_OK : SCC_I_FILEDIFFERS, Show("unit1.pas", flags, [=](wxDialog& dialog) {
                const auto isTicked = [&](const char* label) {
                  return FindLabelled<wxCheckBox>(dialog, label)->GetValue();
                };
                EXPECT_EQ((flags & SCC_DIFF_IGNORECASE) != 0, isTicked("Ignore &case"));
                EXPECT_EQ((flags & SCC_DIFF_IGNORESPACE) != 0, isTicked("Ignore white &space"));
              }));
  EXPECT_EQ(SCC_OK, ann.Diff("unit1.pas", kBoth | SCC_DIFF_QD_CONTENTS));
  EXPECT_EQ(SCC_I_FILEDIFFERS, ann.Diff("unit1.pas", SCC_DIFF_QD_CONTENTS));
}

TEST_F(DiffWindow, ShowsWhatOthersCheckedIn) {
  Join(bob);
  bob.EditAndCheckIn("unit1.pas", "one\ntwo and a half\nthree\n");
  EXPECT_EQ(SCC_I_FILEDIFFERS, Show("unit1.pas", 0, [](wxDialog& dialog) {
              EXPECT_THAT(TextIn(dialog, "left"), HasSubstr("two and a half"));
            }));
  repository.Hide();
  EXPECT_EQ(SCC_OK, Show("unit1.pas", 0,
                         [](wxDialog& dialog) { EXPECT_EQ("There are no differences.", Message(dialog)); }));
  EXPECT_THAT(ann.Said(), HasSubstr("W The repository could not be asked"));
}

TEST_F(DiffWindow, OnlyComparesFilesThatAreNoText) {
  EXPECT_EQ(SCC_OK, Show("picture.bin", 0, [](wxDialog& dialog) {
              EXPECT_EQ("The files are not text. There are no differences.", Message(dialog));
            }));
  ann.Edit("picture.bin", "text now\n");
  EXPECT_EQ(SCC_I_FILEDIFFERS, Show("picture.bin", 0, [](wxDialog& dialog) {
              EXPECT_THAT(Message(dialog), HasSubstr("3 bytes on the left, 9 bytes on the right"));
              EXPECT_EQ(nullptr, wxWindow::FindWindowByName("left", &dialog));
            }));
}

TEST_F(HistoryWindow, ShowsRevisionsTheirTextsAndDifferences) {
  Expect([&](wxDialog& dialog) {
    auto* list = Find<wxListCtrl>(dialog, "revisions");
    EXPECT_EQ(2, list->GetItemCount());
    EXPECT_EQ("3", list->GetItemText(0, 0));
    EXPECT_EQ("ann", list->GetItemText(0, 2));
    EXPECT_EQ(wxString::FromUTF8("second …"), list->GetItemText(0, 3));
    EXPECT_EQ("second\nin detail", Find<wxTextCtrl>(dialog, "comment")->GetValue());
    EXPECT_FALSE(FindLabelled<wxButton>(dialog, "&More")->IsEnabled());
    Expect([](wxDialog& difference) {
      EXPECT_EQ("1", TextIn(difference, "left"));
      EXPECT_EQ("2", TextIn(difference, "right"));
    });
    Press(dialog, "Compare with &Previous");
    list->SetItemState(0, 0, wxLIST_STATE_SELECTED);
    list->SetItemState(1, wxLIST_STATE_SELECTED, wxLIST_STATE_SELECTED);
    EXPECT_EQ("first", Find<wxTextCtrl>(dialog, "comment")->GetValue());
    EXPECT_FALSE(FindLabelled<wxButton>(dialog, "Compare with &Previous")->IsEnabled());
    Expect([](wxDialog& text) { EXPECT_EQ("1\n", TextIn(text, "text")); });
    Press(dialog, "&Show Text");
    Expect([](wxDialog& difference) { EXPECT_EQ("2", TextIn(difference, "right")); });
    Press(dialog, "Compare with &Local");
  });
  EXPECT_EQ(SCC_OK, Show("unit1.pas"));
}

TEST_F(HistoryWindow, ShowsTheHistoryOfFolders) {
  Expect([&](wxDialog& dialog) {
    EXPECT_EQ(3, Find<wxListCtrl>(dialog, "revisions")->GetItemCount());
    EXPECT_FALSE(FindLabelled<wxButton>(dialog, "&Get This Revision...")->IsShown());
  });
  EXPECT_EQ(SCC_OK, Show(""));
  EXPECT_EQ(SCC_E_FILENOTCONTROLLED, Show("new.pas"));
}

TEST_F(RepositoryWindows, BrowseFromTheFileThatIsNamed) {
  Expect([&](wxDialog& dialog) {
    auto* list = Find<wxListCtrl>(dialog, "entries");
    const long row = list->GetNextItem(-1, wxLIST_NEXT_ALL, wxLIST_STATE_SELECTED);
    EXPECT_EQ(1, row);
    EXPECT_EQ("unit1.pas", list->GetItemText(row, 0));
    EXPECT_EQ("2", list->GetItemText(row, 4));
    EXPECT_EQ("ann", list->GetItemText(row, 5));
    Expect([](wxDialog& text) { EXPECT_EQ("1\n", TextIn(text, "text")); });
    Enter(dialog);
    Expect([](wxDialog& history) {
      EXPECT_EQ(1, Find<wxListCtrl>(history, "revisions")->GetItemCount());
      EXPECT_FALSE(FindLabelled<wxButton>(history, "Compare with &Local")->IsShown());
    });
    Press(dialog, "&History...");
    Expect([](wxDialog& shown) { EXPECT_EQ("ann", Value(shown, "Checked out by:")); });
    Press(dialog, "&Properties...");

    list->SetItemState(row, 0, wxLIST_STATE_SELECTED);
    list->SetItemState(0, wxLIST_STATE_SELECTED, wxLIST_STATE_SELECTED);
    Enter(dialog);
    EXPECT_EQ("project/sub: one entry.", Message(dialog));
    EXPECT_EQ(wxString::FromUTF8("Größe & more.pas"), list->GetItemText(0, 0));
    auto* tree = Find<wxTreeCtrl>(dialog, "folders");
    EXPECT_EQ("sub", tree->GetItemText(tree->GetSelection()));
  });
  EXPECT_EQ(SCC_OK, ann.Run(ann.Library()->SccRunScc, {"unit1.pas"}));
}

TEST_F(RepositoryWindows, BrowseWithoutAProject) {
  ann.CheckIn({"unit1.pas"});
  ann.Close();
  Expect([&](wxDialog& dialog) {
    EXPECT_THAT(Message(dialog), HasSubstr("Enter the address"));
    EXPECT_FALSE(FindLabelled<wxButton>(dialog, "&History...")->IsEnabled());
    auto* address = Find<wxComboBox>(dialog, "address");
    address->SetValue("file:///nowhere");
    Press(dialog, "&Open");
    EXPECT_THAT(Message(dialog), HasSubstr("nowhere"));
    address->SetValue(wxString::FromUTF8(repository.Folder()));
    Press(dialog, "&Open");
    EXPECT_EQ("/: one entry.", Message(dialog));
  });
  script.Expect<wxDialog>(
      [](wxDialog& again) { EXPECT_EQ("/: one entry.", Message(again)) << "remembered"; });
  for (int round = 0; round < 2; ++round)
    EXPECT_EQ(SCC_OK, ann.Library()->SccRunScc(ann.Context(), nullptr, 0, nullptr));
}

TEST_F(RepositoryWindows, ShowTheProperties) {
  ann.Write("unit1.pas", "2\n");
  Expect([&](wxDialog& dialog) {
    EXPECT_EQ(repository.Url() + "/project/unit1.pas", Value(dialog, "Address:"));
    EXPECT_EQ("for the tests", Value(dialog, "Check-out comment:"));
    EXPECT_EQ("svn:needs-lock", Find<wxListCtrl>(dialog, "properties")->GetItemText(0, 0));
    EXPECT_EQ(dialog.FindWindow(wxID_CANCEL), dialog.GetDefaultItem());
  });
  EXPECT_EQ(SCC_OK, Properties("unit1.pas"));
  ExpectProperty("", "Kind:", "Folder");
  EXPECT_EQ(SCC_E_FILENOTCONTROLLED, Properties("new.pas"));
  ExpectProperty("unit1.pas", "State:", "checked out here, changed here");
  repository.Hide();
  ExpectProperty("unit1.pas", "State:", "checked out here, changed here");
}

}  // namespace kestrel::svnscc
