// Tools > Commands: a searchable list of actions.
#pragma once

class wxWindow;

namespace kestrel {
class TMenuBridge;
struct TAction;
}  // namespace kestrel

namespace kestrel::workbench {

/// Lets the user choose an enabled action; null if the user cancelled. The caller runs it after the dialog has closed.
const TAction* ChooseAction(wxWindow* parent, const TMenuBridge& menus);

}  // namespace kestrel::workbench
