// Base of the add-in's modal dialogs.
#pragma once

#include <wx/dialog.h>

#include <string>

#include "ui/ModalResult.h"

namespace kestrel::addin {

/// A dialog that returns mrOk or mrCancel.  Its parent is the host's active window or main window.  Escape and the title
/// bar's close button cancel it.  Enter presses the default button, unless the focused control is a button.
/// Opens a page of the help; an empty keyword opens the contents.  The host tells if there is no such page.
void ShowHelpTopic(const std::string& keyword);

class TModalForm : public wxDialog {
 public:
  TModalForm(const wxString& caption, long style);

 protected:
  /// Ends ShowModal() with that result.  Called however the dialog is closed.
  virtual void CloseWith(int modalResult);
  /// Key preview: receives every key before the focused control.
  virtual void FormKeyDown(wxKeyEvent& event);
  /// The keyword of the help page that F1 shows; empty for the contents.
  virtual std::string HelpKeyword() const { return {}; }
  void ShowHelp() const { ShowHelpTopic(HelpKeyword()); }

 private:
  bool PressDefaultButton();
};

}  // namespace kestrel::addin
