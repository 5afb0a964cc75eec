// What the system's modal dialogs have in common: results, key preview, place.
#pragma once

#include <wx/dialog.h>

#include "ui/ModalResult.h"

namespace kestrel::addin {

/// A dialog that ends with mrOk or mrCancel.  It is parented by the active window of the host, or by the host's main
/// window.  Escape and the title bar's close button cancel it; Enter presses the default button, whichever control has
/// the focus, unless that is a button itself.
class TModalForm : public wxDialog {
 public:
  TModalForm(const wxString& caption, long style);

 protected:
  /// Ends ShowModal() with that result.  Every way to close the dialog comes through here.
  virtual void CloseWith(int modalResult);
  /// Key preview: sees every key before the control with the focus.
  virtual void FormKeyDown(wxKeyEvent& event);

 private:
  bool PressDefaultButton();
};

}  // namespace kestrel::addin
