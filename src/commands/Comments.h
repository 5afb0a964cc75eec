// The dialog that asks for the comment of a command.
#pragma once

#include "expert/FileListModel.h"
#include "ui/ModalForm.h"

class wxButton;
class wxCheckBox;
class wxStaticText;
class wxTextCtrl;

class TCommentsForm final : public TModalForm {
 public:
  /// `model` is borrowed; it receives text and box when OK is pressed.
  explicit TCommentsForm(TCommentModel& model);
  ~TCommentsForm() override;

  void FormShow();
  void btnOKClick(wxCommandEvent& event);
  void btnCancelClick(wxCommandEvent& event);

  wxTextCtrl* CommentsMemo;
  wxCheckBox* cbApplyToAll;
  wxButton* btnOK;
  wxButton* btnCancel;

 private:
  void CreateControls();
  void LayOut();
  /// Holds the memo to what a provider takes, and says how much of it is used.
  void FitMemo();

  TCommentModel& model_;
  wxStaticText* LengthLabel;
};

/// The dialog that is shown, or nullptr.
extern TCommentsForm* CommentsForm;
