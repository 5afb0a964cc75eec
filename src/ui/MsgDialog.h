// The modal message dialog: title, icon, beep and a read-only text.
#pragma once

#include <wx/bmpbndl.h>

#include <string>
#include <vector>

#include "ui/Messages.h"
#include "ui/ModalForm.h"

class wxButton;
class wxStaticBitmap;
class wxStaticText;
class wxTextCtrl;

namespace kestrel::addin {

class TMsgDialogForm final : public TModalForm {
 public:
  TMsgDialogForm(const std::string& title, const std::string& msg, TMsgType kind);
  ~TMsgDialogForm() override;

  void btnOKClick(wxCommandEvent& event);

  std::vector<wxBitmapBundle> MsgIconList;  ///< by TMsgType
  wxStaticBitmap* MsgIcon;
  wxStaticText* TitleLabel;
  wxTextCtrl* MessageText;
  wxButton* btnOK;

 private:
  void CreateControls(const std::string& title, const std::string& msg, TMsgType kind);
  void LayOut();
};

/// The open dialog, or null.
extern TMsgDialogForm* MsgDialogForm;

/// Shows the dialog modally; returns when it is closed.
void ShowMsgDialog(const std::string& title, const std::string& msg, TMsgType kind);

}  // namespace kestrel::addin
