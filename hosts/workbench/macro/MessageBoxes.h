// While it exists, replaces native message boxes by the toolkit's, whose buttons a macro can press.
#pragma once

#include <wx/modalhook.h>

namespace kestrel::workbench {

class TMessageBoxes final : public wxModalDialogHook {
 public:
  TMessageBoxes() { Register(); }

 protected:
  int Enter(wxDialog* dialog) override;
};

}  // namespace kestrel::workbench
