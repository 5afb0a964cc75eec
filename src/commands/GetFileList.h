// The dialog in which the user picks the files of a command.
#pragma once

#include "expert/FileListModel.h"
#include "ui/ModalForm.h"
#include "ui/VirtualList.h"

class wxButton;
class wxCheckBox;

namespace kestrel::addin {

struct TCommandContext;

/// The rows of a TFileListModel.  The control asks the model for what it shows, so that 65,536 rows open at once.
class TFilesListView final : public TVirtualList {
 public:
  /// `model` is borrowed.  Its rows change in number only with ShowRows.
  TFilesListView(wxWindow* parent, TFileListModel& model);
  /// Shows as many rows as the model has now.
  void ShowRows() { SetItemCount(static_cast<long>(model_.Count())); }
  /// Turns the ticks of the selected rows to the opposite of the focused row's.
  void ToggleSelected();
  /// Focuses the first ticked row, or the first row, and scrolls to it.
  void FocusFirstChecked();
  /// Lets the paths have the width that the other columns leave.
  void FitColumns();

 protected:
  wxString OnGetItemText(long item, long column) const override;
  bool OnGetItemIsChecked(long item) const override;

 private:
  /// Wide enough for the longest status.
  int StatusWidth() const;

  TFileListModel& model_;
};

class TGetFileListForm final : public TModalForm {
 public:
  /// Edits `model` in place; the boxes under the list are stored when OK is pressed.  Both are borrowed.
  TGetFileListForm(TCommandContext& expert, TFileListModel& model);
  ~TGetFileListForm() override;

  /// Appends a row.
  void AddFile(const std::string& fileName, const std::string& status);
  /// The full path of a row; empty for an index outside the list.
  std::string GetFile(int index) const { return model_.GetFile(index); }
  int ItemsChecked() const { return model_.ItemsChecked(); }
  void ChangeAllCheckedStates(bool checked);
  /// Brings the buttons in line with the ticks.
  void CheckState();

  void FormShow();
  void FormKeyDown(wxKeyEvent& event) override;
  void btnOKClick(wxCommandEvent& event);
  void btnCancelClick(wxCommandEvent& event);
  void btnCheckAllClick(wxCommandEvent& event);
  void btnUncheckAllClick(wxCommandEvent& event);
  void btnAdvancedClick(wxCommandEvent& event);
  void FilesListViewClick(wxListEvent& event);

  TFilesListView* FilesListView;
  wxCheckBox* cbKeepCheckedOut;
  wxCheckBox* cbCheckOut;
  wxButton* btnOK;
  wxButton* btnCancel;
  wxButton* btnCheckAll;
  wxButton* btnUncheckAll;
  wxButton* btnAdvanced;
  std::string CurrentFile;  ///< the file in the editor, a form's unit for a form; since FormShow

 private:
  void CreateControls();
  void LayOut();
  void BindEvents();
  void ShowHelp();
  void ToggleSelected();

  TCommandContext& Expert;
  TFileListModel& model_;
};

/// The dialog of "Get Latest Version" while it is open, otherwise nullptr.  The other commands keep theirs to themselves.
extern TGetFileListForm* GetFileListForm;

}  // namespace kestrel::addin
