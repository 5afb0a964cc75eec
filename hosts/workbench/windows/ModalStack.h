// The open modal dialogs, innermost last; the toolkit does not expose them.
#pragma once

#include <wx/modalhook.h>

#include <vector>

class wxDialog;

namespace kestrel::workbench {

/// One object per program, registered while it exists.
class TModalStack final : public wxModalDialogHook {
 public:
  TModalStack();
  ~TModalStack() override;
  /// The innermost modal dialog; null if there is none.
  static wxDialog* Top();

 protected:
  int Enter(wxDialog* dialog) override;
  void Exit(wxDialog* dialog) override;

 private:
  std::vector<wxDialog*> open_;
};

}  // namespace kestrel::workbench
