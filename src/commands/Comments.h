// The dialog for the comment of a command.
#pragma once

#include <wx/menu.h>

#include "commands/CommentMemo.h"
#include "expert/CommentMemory.h"
#include "expert/FileListModel.h"
#include "ui/ModalForm.h"

class wxButton;
class wxCheckBox;

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
  std::string HelpKeyword() const override { return "HC_TeamComments"; }

 private:
  void CreateControls();
  void LayOut();
  void AppendRecent(std::size_t entry, const wxString& accelerator);
  /// Replaces the memo's text, if `comment` has a value.
  void Replace(const std::optional<std::string>& comment);

  TCommentModel& model_;
  TCommentHistory history_;
  TCommentMemo comment_;
};

/// Always null: each command has a dialog of its own.  Part of the package's interface; no caller here.
extern TCommentsForm* CommentsForm;

}  // namespace kestrel::addin
