#include "commands/GetFileList.h"
#include "expert/SccExpert.h"
#include "support/ModalScript.h"
#include "support/NativePath.h"
#include "support/ScriptedForms.h"
#include "support/ScriptedHost.h"
#include "support/TestRegistry.h"
#include "support/Testing.h"
#include "system/Registry.h"
#include "toolkit/WxText.h"

namespace kestrel::addin {

/// A list dialog of an expert in a scripted host.
struct FileList : testing::Test {
  void Fill(std::size_t rows) {
    for (std::size_t i = 0; i < rows; ++i)
      model.AddFile(Native("/p/unit" + std::to_string(i) + ".pas"), "Current");
  }
  int Show(std::function<void(TGetFileListForm&)> user) {
    TGetFileListForm form(expert->Context(), model);
    return ShowAndPlay(form, std::move(user));
  }
  static TFileListModel::TButtons Buttons(const TGetFileListForm& form) {
    return {form.btnOK->IsEnabled(), form.btnCheckAll->IsEnabled(), form.btnUncheckAll->IsEnabled()};
  }

  TTestRegistry registry;
  TScriptedHost host;
  TScriptedForms forms;
  std::unique_ptr<TSccExpert> expert = std::make_unique<TSccExpert>(forms);
  TFileListModel model;
};

using B = TFileListModel::TButtons;

TEST_F(FileList, HoldsAFullProjectAndIsWorkedByKeyboard) {
  Fill(kMaxFiles);
  const int result = Show([this](TGetFileListForm& form) {
    EXPECT_EQ(Buttons(form), (B{false, true, false}));
    auto& list = *form.FilesListView;
    Preview(&list, WXK_RETURN);
    EXPECT_TRUE(form.IsModal()) << "Enter does nothing while OK is disabled";
    Preview(&list, WXK_SPACE);
    EXPECT_TRUE(list.IsItemChecked(0));
    EXPECT_EQ(Buttons(form), (B{true, true, true}));
    list.Select(0, false);
    for (const long row : {7L, 9L, 65535L}) list.Select(row);
    list.Focus(65535);
    Preview(&list, WXK_SPACE);
    EXPECT_EQ(model.ItemsChecked(), 4) << "the selected rows follow the focused one";
    EXPECT_EQ(FromWx(list.GetItemText(65535, 2)), Native("/p"));
    Click(form.btnCheckAll);
    EXPECT_EQ(model.ItemsChecked(), 65536);
    EXPECT_EQ(Buttons(form), (B{true, false, true}));
    list.CheckItem(3, false);  // as the mouse does
    EXPECT_FALSE(list.IsItemChecked(3));
    EXPECT_EQ(model.ItemsChecked(), 65535);
    EXPECT_EQ(Buttons(form), (B{true, true, true}));
    Preview(&list, WXK_RETURN);
  });
  EXPECT_EQ(result, mrOk);
  EXPECT_FALSE(model.IsChecked(3));
}

TEST_F(FileList, AButtonThatDisablesItselfGivesTheFocusToTheList) {
  Fill(3);
  Show([](TGetFileListForm& form) {
    for (auto* button : {form.btnCheckAll, form.btnUncheckAll}) {
      button->SetFocus();
      Click(button);
      EXPECT_FALSE(button->IsEnabled());
      EXPECT_TRUE(form.FilesListView->IsDescendant(wxWindow::FindFocus()));
    }
    EXPECT_EQ(Buttons(form), (B{false, true, false}));
    form.Close();
  });
}

TEST_F(FileList, OpensAtTheFileThatIsBeingEdited) {
  Fill(5000);
  host.AddUnit(Native("/p/unit4321.kfm"));
  host.TopBuffer = Native("/p/unit4321.kfm");
  Show([this](TGetFileListForm& form) {
    EXPECT_TRUE(model.IsChecked(4321));
    auto& list = *form.FilesListView;
    EXPECT_LE(list.GetTopItem(), 4321);
    EXPECT_GT(list.GetTopItem() + list.GetCountPerPage(), 4321) << "scrolled into view";
    EXPECT_EQ(list.GetFocusedItem(), 4321);
    EXPECT_EQ(Buttons(form), (B{true, true, true}));
    form.Close();
  });
}

TEST_F(FileList, EscapeCancelsFromEveryControl) {
  Fill(1);
  model.HasOptions = true;
  model.Extra = TFileListModel::ExtraBox::KeepCheckedOut;
  for (int control = 0; control < 4; ++control) {
    const int result = Show([&](TGetFileListForm& form) {
      wxWindow* const controls[] = {form.FilesListView, form.cbKeepCheckedOut, form.btnOK, form.btnAdvanced};
      form.cbKeepCheckedOut->SetValue(false);
      Preview(controls[control], WXK_ESCAPE);
    });
    EXPECT_EQ(result, mrCancel);
  }
  EXPECT_TRUE(model.KeepCheckedOut) << "what was cancelled does not count";
}

TEST_F(FileList, F1OpensTheHelpOfTheCommandOrOfTheList) {
  Fill(1);
  Show([this](TGetFileListForm& form) {
    Preview(form.btnOK, WXK_F1);
    model.HelpKeyword = "HC_TeamCheckInFiles";
    Preview(form.btnOK, WXK_F1);
    form.Close();
  });
  EXPECT_THAT(host.Log, ElementsAre("HelpKeyword HC_TeamFileList", "HelpKeyword HC_TeamCheckInFiles"));
}

}  // namespace kestrel::addin
