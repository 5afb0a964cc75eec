// The window that lists every file of the project with its state and a proposed action, and carries them all out.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "ui/ModalForm.h"
#include "wizards/CommitRows.h"

class wxBookCtrlEvent;
class wxButton;
class wxCheckBox;
class wxGridEvent;
class wxNotebook;
class wxPanel;
class wxSizer;
class wxStaticText;
class wxStatusBar;
class wxTextCtrl;

namespace kestrel::addin {

class TActivityComboBox;
class TCommitGrid;
class TCommitTable;
struct TCommandContext;

class TCommitBrowser final : public TModalForm {
 public:
  /// Gathers the rows of the current project.  `expert` is borrowed.  Throws EAbort when there is no provider, or the
  /// project's directory is no provider project.
  explicit TCommitBrowser(TCommandContext& expert);

  void AddRows();
  void AddRow(const std::string& fileName, const std::string& state, TCommitActivity activity);
  /// Shows the local file of that row (from 0), or says that there is none.
  void DisplayWorkspaceFile(int row);

  void FormCreate();
  void FormShow();
  void FormResize();
  void FormKeyDown(wxKeyEvent& event) override;
  /// Keeps Tab inside the drop-down; false when the key is none of its business.
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

  /// A memo for a comment, and how much of what a provider takes it has used.
  struct TCommentMemo {
    wxTextCtrl* Memo;
    wxStaticText* Length;
  };

  void CreateControls();
  void CreateCommitPage();
  void CreateFilePages();
  void CreateSummaryPage();
  TCommentMemo CreateComment(wxPanel* page, wxCheckBox* box);
  wxSizer* CreateHint();
  void LayOut();
  void BindEvents();

  void CloseWith(int modalResult) override;
  /// Shows the comments that were typed and not used in an earlier browser.
  void RestoreComments();
  /// Remembers what is typed, whatever becomes of it.
  void RememberComments();
  /// The row of the grid's cursor, nullptr when there is none.
  TCommitRowData* CurrentRow();
  TCommitRowData* RowAt(int row);
  void PlaceActivities(int row);
  void HideActivities();
  /// Opens the list of activities of the current row, at that activity.
  void OpenActivities(TCommitActivity activity);
  /// Keys of the grid and its drop-down.
  bool GridKeyDown(const wxKeyEvent& event);
  bool TurnToPage(const wxKeyEvent& event);
  /// Holds a memo to what a provider takes.
  static void FitMemo(const TCommentMemo& comment);
  /// Runs `command` and shows what it throws in a box.  Returns whether it threw none.
  bool RunShowingErrors(const std::function<void()>& command);
  void SetBusy(bool busy);

  TCommitTable* table_ = nullptr;  // the grid's
  TCommentMemo individual_{};
  TCommentMemo summary_{};
  wxStatusBar* source_status_ = nullptr;
  wxStaticText* progress_ = nullptr;
  std::string project_file_;
  bool busy_ = false;  // a pass is running
};

}  // namespace kestrel::addin
