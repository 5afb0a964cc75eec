// The commit browser's window.
#include <wx/notebook.h>

#include "expert/ExpertFixture.h"
#include "support/ModalScript.h"
#include "toolkit/WxText.h"
#include "wizards/CommitBrowser.h"
#include "wizards/CommitGrid.h"

namespace kestrel::addin {

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
  static void Type(wxTextCtrl* memo, const std::string& text) {
    memo->WriteText(ToWx(text));
    wxYield();
  }
};

TEST_F(CommitBrowser, AProjectWithoutFilesShowsOneEmptyRow) {
  Browsed();
  fs::remove_all(folder_ / "work");
  provider_->Calls.clear();
  Show([this](TCommitBrowser& form) {
    EXPECT_EQ(form.FRowCount, 0);
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
    form.StringGrid1->SetGridCursor(3, cgcStatus);
    EXPECT_EQ(FromWx(form.TMemoIndividualComment->GetValue()), std::string("n").append(127, 'x'));
    form.FRows[3].Activity = caAdd;
    form.FRows[3].Comment = std::string(127, 'x');
    Click(form.TButtonCommit);
  });
  EXPECT_EQ(provider_->Last("SccCheckin").Comment, "first line\nsecond");
  EXPECT_EQ(provider_->Last("SccAdd").Comment, std::string(127, 'x')) << "the row was not left since";
  Show([&](TCommitBrowser& form) {
    EXPECT_EQ(form.FRows[2].Comment, "") << "used";
    EXPECT_EQ(form.FRows[3].Comment, std::string("n").append(127, 'x'));
    form.Close();
  });
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
    fs::remove(units_[0]);
    EXPECT_EQ(shown(2), "File does not exist in local path");
    form.Close();
  });
}

TEST_F(CommitBrowser, StaysOpenWhenTheCommitCannotBegin) {
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

TEST_F(CommitBrowser, RefusesInputWhileTheCommitRuns) {
  std::string progress;
  Show([&](TCommitBrowser& form) {
    form.FRows[3].Activity = caCommit;
    provider_->OnCall["SccCheckin"] = [&](const ScriptedCall&) {
      for (const auto* child : form.GetChildren())
        if (child->GetLabel().StartsWith("File ")) progress = FromWx(child->GetLabel());
      if (provider_->Count("SccCheckin") > 1) return;
      EXPECT_FALSE(form.TButtonCommit->IsEnabled());
      Preview(&form, WXK_ESCAPE);
      form.Close();
      EXPECT_TRUE(form.IsModal());
      wxMilliSleep(60);  // the line changes some twenty times a second
    };
    Click(form.TButtonCommit);
  });
  EXPECT_EQ(provider_->Count("SccCheckin"), 2);
  EXPECT_EQ(progress, "File 4 of 4: unit2.pas");
}

}  // namespace kestrel::addin
