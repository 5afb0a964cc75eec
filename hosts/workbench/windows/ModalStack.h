// Which modal dialogs are open, the innermost last: the toolkit itself does not say.
#pragma once

#include <wx/modalhook.h>

#include <vector>

class wxDialog;

namespace kestrel::workbench {

/// One object for the program, registered for as long as it lives.
class TModalStack final : public wxModalDialogHook {
 public:
  TModalStack();
  ~TModalStack() override;
  /// The innermost modal dialog, or nullptr.
  static wxDialog* Top();

 protected:
  int Enter(wxDialog* dialog) override;
  void Exit(wxDialog* dialog) override;

 private:
  std::vector<wxDialog*> open_;
};

}  // namespace kestrel::workbench
