// Tools > Commands: the action list, searched by typing.
#pragma once

class wxWindow;

namespace kestrel {
struct TAction;
}

namespace kestrel::workbench {

class TMenuBridge;

/// Lets the user choose an enabled action; nullptr when he cancelled.  The caller runs it once the dialog is gone.
const TAction* ChooseAction(wxWindow* parent, const TMenuBridge& menus);

}  // namespace kestrel::workbench
