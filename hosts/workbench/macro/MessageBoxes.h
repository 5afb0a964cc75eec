// While a macro plays, the system's own message boxes are shown by the toolkit's, whose buttons a macro can press.
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
