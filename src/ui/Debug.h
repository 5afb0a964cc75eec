// The debug window: a plain text pad, there from package load to unload and hidden until somebody shows it.
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

/// The debug window, or nullptr outside the package's life.
extern TDebugForm* DebugForm;

/// Called by the package entry at initialization and finalization.
void CreateDebugForm();
void FreeDebugForm();

}  // namespace kestrel::addin
