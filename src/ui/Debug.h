// The debug window: a text pad that exists while the package is loaded and is hidden until it is shown.  Part of the
// package's interface; no caller here.
#pragma once

#include <wx/frame.h>

class wxButton;
class wxTextCtrl;

namespace kestrel::addin {

class TDebugForm final : public wxFrame {
 public:
  TDebugForm();
  ~TDebugForm() override;

  void Clear();
  bool ShouldPreventAppExit() const override { return false; }
  void btnCloseClick(wxCommandEvent& event);
  void btnClearClick(wxCommandEvent& event);

  wxTextCtrl* const memoDebugText;
  wxButton* const btnClose;
  wxButton* const btnClear;
};

/// The debug window; null while the package is not loaded.
extern TDebugForm* DebugForm;

/// Called when the package is initialized and finalized.
void CreateDebugForm();
void FreeDebugForm();

}  // namespace kestrel::addin
