// The dialog in which the user selects the files of a command.
#pragma once

#include "expert/FileListModel.h"
#include "ui/ModalForm.h"
#include "ui/VirtualList.h"

class wxButton;
class wxCheckBox;

namespace kestrel::addin {

struct TCommandContext;

/// The rows of a TFileListModel.  The list is virtual, so that 65,536 rows open immediately.
class TFilesListView final : public TVirtualList {
 public:
  /// `model` is borrowed.  Call ShowRows() after the number of its rows has changed.
  TFilesListView(wxWindow* parent, TFileListModel& model);
  /// Updates the number of rows from the model.
  void ShowRows() { SetItemCount(static_cast<long>(model_.Count())); }
  /// Focuses the first checked row, or the first row, and scrolls to it.
  void FocusFirstChecked();
  /// Widens the path column to fill the list.
  void FitColumns();

 protected:
  wxString OnGetItemText(long item, long column) const override;
  bool OnGetItemIsChecked(long item) const override;
  void SetItemChecked(long item, bool check) override;

 private:
  /// The width of the longest status.
  int StatusWidth() const;

  TFileListModel& model_;
};

class TGetFileListForm final : public TModalForm {
 public:
  /// Edits `model` in place; the check boxes below the list are stored if OK is pressed.  Both arguments are borrowed.
  TGetFileListForm(TCommandContext& expert, TFileListModel& model);
  ~TGetFileListForm() override;

  /// Appends a row.
  void AddFile(const std::string& fileName, const std::string& status);
  /// The full path of a row; empty for an index outside the list.
  std::string GetFile(int index) const { return model_.GetFile(index); }
  int ItemsChecked() const { return model_.ItemsChecked(); }
  void ChangeAllCheckedStates(bool checked);
  /// Enables the buttons according to the check boxes.
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
  std::string CurrentFile;  ///< the file in the editor, for a form its unit; set by FormShow()

 private:
  void CreateControls();
  void LayOut();
  void BindEvents();
  std::string HelpKeyword() const override;
  void ToggleSelected();

  TCommandContext& Expert;
  TFileListModel& model_;
};

/// The dialog of "Get Latest Version" while it is open, otherwise null.
extern TGetFileListForm* GetFileListForm;

}  // namespace kestrel::addin
