// The commit browser's window.
#include <wx/notebook.h>

#include "expert/ExpertFixture.h"
#include "support/ModalScript.h"
#include "toolkit/WxText.h"
#include "wizards/CommitBrowser.h"
#include "wizards/CommitGrid.h"

namespace kestrel::addin {

namespace {

using namespace scc;
constexpr Long kMine = SCC_STATUS_CONTROLLED | SCC_STATUS_CHECKEDOUT | SCC_STATUS_OUTBYUSER;

/// Rows: 0 App.qvxproj, 1 unit1.kfm, 2 unit1.pas (mine, modified), 3 unit2.pas.
class CommitBrowser : public TExpertTest {
 protected:
  int Show(std::function<void(TCommitBrowser&)> user) {
    TCommitBrowser form(Browsed().Context());
    return ShowAndPlay(form, std::move(user));
  }
  TSccExpert& Browsed() {
    if (expert_) return *expert_;
    auto& expert = Open();
    provider_->Statuses[units_[0]] = kMine;
    provider_->Differing = {units_[0]};
    return expert;
  }
  static std::string Cell(TCommitBrowser& form, int row, int column) {
    return FromWx(form.StringGrid1->GetCellValue(row, column));
  }
  static bool IsFocused(wxWindow* control) { return control->IsDescendant(wxWindow::FindFocus()); }
  static void Type(wxTextCtrl* memo, const std::string& text) {
    memo->WriteText(ToWx(text));
    wxYield();
  }
  static void Toggle(wxCheckBox* box) {
    box->SetValue(!box->GetValue());
    wxCommandEvent event(wxEVT_CHECKBOX, box->GetId());
    event.SetEventObject(box);
    box->HandleWindowEvent(event);
  }
  /// Picks an item of the drop-down that is shown, as a click on it does.
  static void Pick(TCommitBrowser& form, TCommitActivity activity) {
    form.ActivityComboBox->SetSelection(activity);
    wxCommandEvent event(wxEVT_COMBOBOX, form.ActivityComboBox->GetId());
    event.SetEventObject(form.ActivityComboBox);
    form.ActivityComboBox->HandleWindowEvent(event);
  }
};

TEST_F(CommitBrowser, AProjectWithoutFilesShowsOneEmptyRow) {
  Browsed();
  std::filesystem::remove_all(folder_ / "work");
  provider_->Calls.clear();
  Show([this](TCommitBrowser& form) {
    EXPECT_EQ(form.FRowCount, 0);
    EXPECT_EQ(form.StringGrid1->GetNumberRows(), 1);
    EXPECT_EQ(Cell(form, 0, cgcActivity), "");
    form.StringGrid1->SetGridCursor(0, cgcStatus);
    form.StringGrid1->SetGridCursor(0, cgcActivity);
    EXPECT_FALSE(form.ActivityComboBox->IsShown());
    Preview(form.StringGrid1, 'C');
    Click(form.TButtonShowDiff);
    EXPECT_EQ(provider_->Count("SccDiff"), 0);
    Click(form.TButtonCommit);
  });
  EXPECT_THAT(forms_.Boxes,
              ElementsAre(TShownBox{"Commit Borwser", "Processing Project Files\r\n", metInfo}));
}

TEST_F(CommitBrowser, TheDropDownFloatsOverTheFirstColumn) {
  TCommitBrowser hidden(Browsed().Context());
  hidden.StringGrid1->SetGridCursor(1, cgcActivity);
  EXPECT_FALSE(hidden.ActivityComboBox->IsShown()) << "before the form is shown";

  Show([](TCommitBrowser& form) {
    auto& grid = *form.StringGrid1;
    auto& list = *form.ActivityComboBox;
    grid.SetGridCursor(2, cgcStatus);
    EXPECT_FALSE(list.IsShown());
    grid.SetGridCursor(2, cgcActivity);
    EXPECT_TRUE(list.IsShown());
    EXPECT_TRUE(IsFocused(&list));
    EXPECT_EQ(list.GetSelection(), caCommit);
    EXPECT_EQ(list.GetSize(), grid.CellToRect(2, cgcActivity).GetSize());
    EXPECT_EQ(grid.GetGridWindow()->ScreenToClient(list.GetScreenPosition()),
              grid.CellToRect(2, cgcActivity).GetTopLeft());
    EXPECT_TRUE(Preview(&list, WXK_TAB));
    EXPECT_TRUE(IsFocused(&list)) << "Tab stays in it";

    Pick(form, caUndo);
    EXPECT_EQ(form.FRows[2].Activity, caUndo);
    EXPECT_EQ(Cell(form, 2, cgcActivity), "Undo Check Out");
    EXPECT_FALSE(list.IsShown());
    EXPECT_TRUE(IsFocused(&grid));
    wxGridEvent click(grid.GetId(), wxEVT_GRID_CELL_LEFT_CLICK, &grid, 2, cgcActivity);
    grid.HandleWindowEvent(click);
    EXPECT_TRUE(list.IsShown()) << "a second thought";
    EXPECT_EQ(list.GetSelection(), caUndo);

    for (const auto& hide : std::vector<std::function<void()>>{
             [&] { grid.SetGridCursor(2, cgcFileName); },
             [&] { form.StringGrid1TopLeftChanged(); },
             [&] { form.TCommitPageControl->SetSelection(1); },
         }) {
      form.TCommitPageControl->SetSelection(0);
      grid.SetGridCursor(1, cgcFileName);
      grid.SetGridCursor(1, cgcActivity);
      ASSERT_TRUE(list.IsShown());
      hide();
      EXPECT_FALSE(list.IsShown());
    }
    form.Close();
  });
}

TEST_F(CommitBrowser, CommentsTravelWithTheirRowsAndFitTheProvider) {
  Show([](TCommitBrowser& form) {
    form.StringGrid1->SetGridCursor(2, cgcStatus);
    Type(form.TMemoIndividualComment, "first line\nsecond");
    form.StringGrid1->SetGridCursor(3, cgcStatus);
    EXPECT_EQ(form.TMemoIndividualComment->GetValue(), "");
    const std::string longest(127, 'x');
    Type(form.TMemoIndividualComment, longest + "ä");
    EXPECT_EQ(FromWx(form.TMemoIndividualComment->GetValue()), longest);
    form.StringGrid1->SetGridCursor(2, cgcStatus);
    EXPECT_EQ(form.TMemoIndividualComment->GetValue(), "first line\nsecond");
    form.StringGrid1->SetGridCursor(3, cgcStatus);
    Type(form.TMemoIndividualComment, "not stored");
    Type(form.TMemoSummaryComments, "for all");
    Preview(form.StringGrid1, WXK_ESCAPE);
  });
  Show([&](TCommitBrowser& form) {
    EXPECT_EQ(form.TMemoSummaryComments->GetValue(), "for all");
    EXPECT_TRUE(form.TCheckboxIndividualComment->GetValue());
    form.StringGrid1->SetGridCursor(3, cgcStatus);
    EXPECT_EQ(FromWx(form.TMemoIndividualComment->GetValue()), "n" + std::string(127, 'x'));
    form.FRows[3].Activity = caAdd;
    form.FRows[3].Comment = std::string(127, 'x');
    Click(form.TButtonCommit);
  });
  EXPECT_EQ(provider_->Last("SccCheckin").Comment, "first line\nsecond");
  EXPECT_EQ(provider_->Last("SccAdd").Comment, std::string(127, 'x')) << "the row was not left since";
  Show([&](TCommitBrowser& form) {
    EXPECT_EQ(form.FRows[2].Comment, "") << "used";
    EXPECT_EQ(form.FRows[3].Comment, "n" + std::string(127, 'x'));
    EXPECT_EQ(form.TMemoSummaryComments->GetValue(), "for all");
    form.Close();
  });
}

TEST_F(CommitBrowser, TheSummaryCommentServesAllRows) {
  EXPECT_EQ(Show([](TCommitBrowser& form) {
              form.FRows[2].Comment = "own";
              form.FRows[3].Activity = caAdd;
              Type(form.TMemoSummaryComments, "for all");
              Click(form.TButtonCommit);
            }),
            mrOk);
  EXPECT_EQ(provider_->Last("SccCheckin").Comment, "for all");
  EXPECT_EQ(provider_->Last("SccAdd").Comment, "for all");
}

TEST_F(CommitBrowser, ShowsTheLocalSource) {
  const std::string big(3 << 20, 'b');
  folder_.Write("work/unit2.pas", big);
  folder_.Write("work/unit1.kfm", std::string("bin\0ary", 7));
  Browsed();
  Show([this](TCommitBrowser& form) {
    const auto shown = [&](int row) {
      form.StringGrid1->SetGridCursor(row, cgcStatus);
      return FromWx(form.TMemoWorkspaceSource->GetValue());
    };
    EXPECT_EQ(shown(1), "bin ary");
    EXPECT_EQ(shown(3).size(), 1U << 20);
    std::filesystem::remove(units_[0]);
    EXPECT_EQ(shown(2), "File does not exist in local path");
    form.Close();
  });
}

TEST_F(CommitBrowser, StaysOpenWhenThePassCannotBegin) {
  EXPECT_EQ(Show([this](TCommitBrowser& form) {
              provider_->OnCall["SccDiff"] = [&](const ScriptedCall&) { Click(form.TButtonCommit); };
              Click(form.TButtonShowDiff);
              EXPECT_TRUE(form.IsModal());
              host_.Notify(TOTAFileNotification::fnFileClosing, project_file_);
              Click(form.TButtonCommit);
              EXPECT_TRUE(form.IsModal());
              EXPECT_TRUE(form.TButtonCommit->IsEnabled());
              form.Close();
            }),
            mrCancel);
  EXPECT_THAT(
      forms_.Boxes,
      ElementsAre(
          TShownBox{"Commit Browser", "The source code control provider is still busy with another call",
                    metError},
          TShownBox{"Commit Browser", "Unable to run Commit Browser, provider not assigned", metError}));
}

TEST_F(CommitBrowser, CannotBeWorkedWhileThePassRuns) {
  std::vector<std::string> progress;
  Show([&](TCommitBrowser& form) {
    form.FRows[3].Activity = caCommit;
    provider_->OnCall["SccCheckin"] = [&](const ScriptedCall&) {
      for (const auto* child : form.GetChildren())
        if (child->GetLabel().StartsWith("File ")) progress.push_back(FromWx(child->GetLabel()));
      if (progress.size() > 1) return;
      EXPECT_FALSE(form.TButtonCommit->IsEnabled());
      Preview(&form, WXK_ESCAPE);
      form.Close();
      EXPECT_TRUE(form.IsModal());
      wxMilliSleep(60);  // the line changes some twenty times a second
    };
    Click(form.TButtonCommit);
  });
  EXPECT_EQ(provider_->Count("SccCheckin"), 2);
  ASSERT_EQ(progress.size(), 2U);
  EXPECT_EQ(progress.back(), "File 4 of 4: unit2.pas");
}

}  // namespace

}  // namespace kestrel::addin
