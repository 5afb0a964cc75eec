// Tools > Options: the pages of the workbench and of add-ins.
#pragma once

class wxWindow;

namespace kestrel {
class TIdeServices;
}

namespace kestrel::workbench {

/// Shows the dialog; returns true if it was accepted and everything was saved. Cancel changes nothing.
bool ShowOptionsDialog(wxWindow* parent, TIdeServices& services);

}  // namespace kestrel::workbench
