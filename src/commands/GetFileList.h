// The dialog in which the user picks the files of a command.
#pragma once

#include <wx/listctrl.h>

#include "expert/FileListModel.h"
#include "ui/ModalForm.h"

class TSccExpert;
class wxButton;
class wxCheckBox;

/// The rows of a TFileListModel.  The control asks the model for what it shows, so that 65,536 rows open at once.
class TFilesListView final : public wxListView {
 public:
  /// `model` is borrowed and complete: its rows do not change in number.
  TFilesListView(wxWindow* parent, TFileListModel& model);
  /// Turns the ticks of the selected rows to the opposite of the focused row's.
  void ToggleSelected();
  /// Focuses the first ticked row, or the first row, and scrolls to it.
  void FocusFirstChecked();
  /// Lets the paths have the width that the other columns leave.
  void FitColumns();

 protected:
  wxString OnGetItemText(long item, long column) const override;
  int OnGetItemImage(long) const override { return -1; }
  bool OnGetItemIsChecked(long item) const override;

 private:
  /// Wide enough for the longest status.
  int StatusWidth() const;

  TFileListModel& model_;
};

class TGetFileListForm final : public TModalForm {
 public:
  /// Edits `model` in place; the boxes under the list are stored when OK is pressed.  Both are borrowed.
  TGetFileListForm(TSccExpert& expert, TFileListModel& model);
  ~TGetFileListForm() override;

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

 private:
  void CreateControls();
  void LayOut();
  void BindEvents();
  void ShowHelp();
  void ToggleSelected();

  TSccExpert& Expert;
  TFileListModel& model_;
};

/// The dialog that is shown, or nullptr.
extern TGetFileListForm* GetFileListForm;
