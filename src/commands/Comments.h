// The dialog that asks for the comment of a command.
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
  /// `model` is borrowed.  It receives the text however the dialog is closed, and the box when OK is pressed.
  explicit TCommentsForm(TCommentModel& model);

  void FormShow();
  void FormKeyDown(wxKeyEvent& event) override;
  void btnOKClick(wxCommandEvent& event);
  void btnCancelClick(wxCommandEvent& event);
  void btnRecentClick(wxCommandEvent& event);
  /// Brings RecentMenu up to date with what the memo can be replaced by.
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
  /// Holds the memo to what a provider takes, and says how much of it is used.
  void FitMemo();
  void AppendRecent(std::size_t entry, const wxString& accelerator);
  /// Shows another comment in the memo, if there is one.
  void Replace(const std::optional<std::string>& comment);

  TCommentModel& model_;
  TCommentHistory history_;
  wxStaticText* LengthLabel;
};

/// For a command that shares its dialog with others.  None does: each keeps its own to itself.
extern TCommentsForm* CommentsForm;

}  // namespace kestrel::addin
