// The dialog for the comment of a command.
#pragma once

#include <wx/menu.h>

#include "expert/CommentMemory.h"
#include "expert/FileListModel.h"
#include "ui/ModalForm.h"

class wxButton;
class wxCheckBox;
class wxStaticText;
class wxTextCtrl;

namespace kestrel::addin {

class TCommentsForm final : public TModalForm {
 public:
  /// `model` is borrowed.  It receives the text however the dialog is closed, and the check box if OK is pressed.
  explicit TCommentsForm(TCommentModel& model);

  void FormShow();
  void FormKeyDown(wxKeyEvent& event) override;
  void btnOKClick(wxCommandEvent& event);
  void btnCancelClick(wxCommandEvent& event);
  void btnRecentClick(wxCommandEvent& event);
  /// Fills RecentMenu with the comments that can replace the memo's text.
  void FillRecentMenu();

  wxTextCtrl* CommentsMemo;
  wxCheckBox* cbApplyToAll;
  wxButton* btnOK;
  wxButton* btnCancel;
  wxButton* btnRecent;
  wxMenu RecentMenu;

 protected:
  void CloseWith(int modalResult) override;

 private:
  void CreateControls();
  void LayOut();
  /// Truncates the memo to the length that providers accept and shows how much of it is used.
  void FitMemo();
  void AppendRecent(std::size_t entry, const wxString& accelerator);
  /// Replaces the memo's text, if `comment` has a value.
  void Replace(const std::optional<std::string>& comment);

  TCommentModel& model_;
  TCommentHistory history_;
  wxStaticText* LengthLabel;
};

/// Always null: each command has a dialog of its own.  Part of the package's interface; no caller here.
extern TCommentsForm* CommentsForm;

}  // namespace kestrel::addin
