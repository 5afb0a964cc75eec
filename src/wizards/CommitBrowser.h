// The commit browser: lists all files of the project with status and suggested activity, and performs the activities.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "commands/CommentMemo.h"
#include "ui/ModalForm.h"
#include "wizards/CommitRows.h"

class wxBookCtrlEvent;
class wxButton;
class wxCheckBox;
class wxGridEvent;
class wxNotebook;
class wxPanel;
class wxSizer;
class wxStatusBar;

namespace kestrel::addin {

class TActivityComboBox;
class TCommitGrid;
class TCommitTable;
struct TCommandContext;

class TCommitBrowser final : public TModalForm {
 public:
  /// Collects the rows of the current project.  `expert` is borrowed.  Throws EAbort if there is no provider or no provider
  /// project for the project's directory.
  explicit TCommitBrowser(TCommandContext& expert);

  void AddRows();
  void AddRow(const std::string& fileName, const std::string& state, TCommitActivity activity);
  /// Shows the local file of that row (from 0), or a text that there is none.
  void DisplayWorkspaceFile(int row);

  void FormCreate();
  void FormShow();
  void FormResize();
  void FormKeyDown(wxKeyEvent& event) override;
  /// Keeps Tab inside the drop-down list; returns false if the key was not handled.
  bool CMDialogKey(const wxKeyEvent& event);
  void StringGrid1SelectCell(wxGridEvent& event);
  void StringGrid1TopLeftChanged();
  void ActivityComboBoxChange(wxCommandEvent& event);
  void TCommitPageControlChange(wxBookCtrlEvent& event);
  void TCheckBoxPathTrimClick(wxCommandEvent& event);
  void TMemoIndividualCommentChange(wxCommandEvent& event);
  void TCheckboxIndividualCommentClick(wxCommandEvent& event);
  void TMemoSummaryCommentsChange(wxCommandEvent& event);
  void TCheckBoxSummaryCommentClick(wxCommandEvent& event);
  void TButtonShowDiffClick(wxCommandEvent& event);
  void TButtonShowHistoryClick(wxCommandEvent& event);
  void TButtonCancelClick(wxCommandEvent& event);
  void TButtonCommitClick(wxCommandEvent& event);
  void HelpButtonClick();

  wxNotebook* TCommitPageControl;
  wxPanel* TTabSheetCommit;
  TCommitGrid* StringGrid1;
  TActivityComboBox* ActivityComboBox;
  wxCheckBox* TCheckBoxPathTrim;
  wxNotebook* TFileDisplayPageControl;
  wxPanel* TTabSheetIndividualComment;
  wxTextCtrl* TMemoIndividualComment;
  wxCheckBox* TCheckboxIndividualComment;
  wxPanel* TTabSheetWorkspaceSource;
  wxTextCtrl* TMemoWorkspaceSource;
  wxPanel* TTabSheetSourceDiffAndHist;
  wxButton* TButtonShowDiff;
  wxButton* TButtonShowHistory;
  wxPanel* TTabSheetSummaryComment;
  wxTextCtrl* TMemoSummaryComments;
  wxCheckBox* TCheckBoxSummaryComment;
  wxButton* HelpButton;
  wxButton* TButtonCancel;
  wxButton* TButtonCommit;

  std::int32_t FRowCount = 0;
  std::vector<TCommitRowData> FRows;
  bool FShown = false;
  TCommandContext* FExpert;

 private:
  class TProgressLine;

  void CreateControls();
  void CreateCommitPage();
  void CreateFilePages();
  void CreateSummaryPage();
  TCommentMemo CreateComment(wxPanel* page, wxCheckBox* box);
  wxSizer* CreateHint();
  void LayOut();
  void BindEvents();

  void CloseWith(int modalResult) override;
  std::string HelpKeyword() const override { return "HC_TeamCommitBrowser"; }
  /// Restores comments that were typed and not used in an earlier browser.
  void RestoreComments();
  /// Records the typed comments, even if the dialog is cancelled or the commit fails.
  void RememberComments();
  /// The row at the grid's cursor, or null.
  TCommitRowData* CurrentRow();
  TCommitRowData* RowAt(int row);
  void PlaceActivities(int row);
  void HideActivities();
  /// Opens the list of activities for the current row, with `activity` preselected.
  void OpenActivities(TCommitActivity activity);
  /// Handles keys of the grid and its drop-down list; returns false if the key was not handled.
  bool GridKeyDown(const wxKeyEvent& event);
  bool TurnToPage(const wxKeyEvent& event);
  /// Runs `command` and shows an exception's message; returns whether there was none.
  bool RunShowingErrors(const std::function<void()>& command);
  void SetBusy(bool busy);

  TCommitTable* table_ = nullptr;  // owned by the grid
  TCommentMemo individual_;
  TCommentMemo summary_;
  wxStatusBar* sourceStatus_ = nullptr;
  wxStaticText* progress_ = nullptr;
  std::string projectFile_;
  bool busy_ = false;  // the activities are being performed
};

}  // namespace kestrel::addin
