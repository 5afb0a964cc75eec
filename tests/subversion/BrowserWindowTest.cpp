// The repository browser and the window of properties, through the loaded library.
#include <wx/listctrl.h>
#include <wx/treectrl.h>

#include "Developer.h"
#include "WindowControls.h"

namespace kestrel::svnscc {

namespace {

struct RepositoryWindows : testing::Test {
  RepositoryWindows() {
    ann.Open(repository.Url(), "trunk/project");
    ann.Write("unit1.pas", "1\n");
    ann.Write("sub/Größe & more.pas", "22\n");
    ann.Add({"unit1.pas", "sub/Größe & more.pas"});
    ann.CheckOut({"unit1.pas"}, "for the tests");
  }
  scc::Long Browse(std::vector<const char*> names) {
    return ann.Library()->SccRunScc(ann.Context(), nullptr, static_cast<scc::Long>(names.size()),
                                    names.empty() ? nullptr : names.data());
  }
  static void Enter(wxDialog& dialog) {
    auto* list = Find<wxListCtrl>(dialog, "entries");
    wxListEvent event(wxEVT_LIST_ITEM_ACTIVATED, list->GetId());
    list->HandleWindowEvent(event);
  }
  static std::string Value(wxDialog& dialog, const char* name) {
    return Find<wxTextCtrl>(dialog, name)->GetValue().utf8_string();
  }
  TTestRepository repository;
  TDeveloper ann{"ann"};
  TModalScript script;
};

}  // namespace

TEST_F(RepositoryWindows, BrowsesFromTheFileThatIsNamed) {
  const std::string file = ann.File("unit1.pas");
  script.Expect<wxDialog>([&](wxDialog& dialog) {
    auto* list = Find<wxListCtrl>(dialog, "entries");
    const long row = list->GetNextItem(-1, wxLIST_NEXT_ALL, wxLIST_STATE_SELECTED);
    EXPECT_EQ(1, row);
    EXPECT_EQ("unit1.pas", list->GetItemText(row, 0));
    EXPECT_EQ("2", list->GetItemText(row, 4));
    EXPECT_EQ("ann", list->GetItemText(row, 5));
    script.Expect<wxDialog>([](wxDialog& text) { EXPECT_EQ("1\n", TextIn(text, "text")); });
    Enter(dialog);
    script.Expect<wxDialog>([](wxDialog& history) {
      EXPECT_EQ(1, Find<wxListCtrl>(history, "revisions")->GetItemCount());
      EXPECT_FALSE(FindLabelled<wxButton>(history, "Compare with &Local")->IsShown());
    });
    Press(dialog, "&History...");
    script.Expect<wxDialog>(
        [](wxDialog& properties) { EXPECT_EQ("ann", Value(properties, "Checked out by:")); });
    Press(dialog, "&Properties...");

    list->SetItemState(row, 0, wxLIST_STATE_SELECTED);
    list->SetItemState(0, wxLIST_STATE_SELECTED, wxLIST_STATE_SELECTED);
    Enter(dialog);
    EXPECT_EQ("trunk/project/sub: one entry.", Message(dialog));
    EXPECT_EQ(wxString::FromUTF8("Größe & more.pas"), list->GetItemText(0, 0));
    auto* tree = Find<wxTreeCtrl>(dialog, "folders");
    EXPECT_EQ("sub", tree->GetItemText(tree->GetSelection()));
  });
  EXPECT_EQ(scc::SCC_OK, Browse({file.c_str()}));
}

TEST_F(RepositoryWindows, BrowsesWithoutAProject) {
  ann.CheckIn({"unit1.pas"});
  ann.Close();
  script.Expect<wxDialog>([&](wxDialog& dialog) {
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
  EXPECT_EQ(scc::SCC_OK, Browse({}));
  script.Expect<wxDialog>(
      [&](wxDialog& dialog) { EXPECT_EQ("/: one entry.", Message(dialog)); });  // remembered
  EXPECT_EQ(scc::SCC_OK, Browse({}));
}

TEST_F(RepositoryWindows, TellWhatThereIsToKnowOfAFile) {
  ann.Write("unit1.pas", "2\n");
  script.Expect<wxDialog>([&](wxDialog& dialog) {
    EXPECT_EQ(repository.Url() + "/trunk/project/unit1.pas", Value(dialog, "Address:"));
    EXPECT_EQ("checked out here, changed here", Value(dialog, "State:"));
    EXPECT_EQ("for the tests", Value(dialog, "Check-out comment:"));
    EXPECT_EQ("svn:needs-lock", Find<wxListCtrl>(dialog, "properties")->GetItemText(0, 0));
    EXPECT_EQ(dialog.FindWindow(wxID_CANCEL), dialog.GetDefaultItem());
  });
  EXPECT_EQ(scc::SCC_OK, ann.Library()->SccProperties(ann.Context(), nullptr, ann.File("unit1.pas").c_str()));
  script.Expect<wxDialog>([&](wxDialog& dialog) { EXPECT_EQ("Folder", Value(dialog, "Kind:")); });
  EXPECT_EQ(scc::SCC_OK, ann.Library()->SccProperties(ann.Context(), nullptr, ann.Folder().c_str()));
  EXPECT_EQ(scc::SCC_E_FILENOTCONTROLLED,
            ann.Library()->SccProperties(ann.Context(), nullptr, ann.File("new.pas").c_str()));

  std::filesystem::rename(repository.Folder(), repository.Folder() + "-gone");
  script.Expect<wxDialog>(
      [&](wxDialog& dialog) { EXPECT_EQ("checked out here, changed here", Value(dialog, "State:")); });
  EXPECT_EQ(scc::SCC_OK, ann.Library()->SccProperties(ann.Context(), nullptr, ann.File("unit1.pas").c_str()));
}

}  // namespace kestrel::svnscc
