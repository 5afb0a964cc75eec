// Working controls as a user does.  Every function answers an empty text when it did its work, else what stood in the
// way.  All of them let the control send the events that a user's action would.
#pragma once

#include <wx/window.h>

#include <optional>
#include <string>

class wxUIActionSimulator;

namespace kestrel::workbench {

std::string PressButton(wxWindow& window, const wxString& label);
/// A check box or radio button of that label, or the row of a list with boxes that shows `text` in some column.
std::string TickBox(wxWindow& window, const wxString& text, bool ticked);
/// The state of what TickBox would change; nullopt when there is no such box.
std::optional<bool> IsTicked(wxWindow& window, const wxString& text);
std::string SelectRow(wxWindow& window, const wxString& text);
std::string EditCell(wxWindow& window, const wxString& rowText, const wxString& column,
                     const wxString& value);
std::string TurnToPage(wxWindow& window, const wxString& caption);
std::string TypeText(wxWindow& window, const wxString& label, const wxString& text);
std::string ChooseItem(wxWindow& window, const wxString& label, const wxString& item);
/// A key to the window that has the focus, through the system: names as "Escape", "Ctrl+Shift+F1", "A".
std::string PressKey(wxUIActionSimulator& input, const wxString& name);
/// Whether a button of that label is there and enabled.
bool HasButton(wxWindow& window, const wxString& label);
/// Where that button, and where a row of a list, tree or grid that shows `text` is on the screen; empty for nowhere.
wxRect ButtonRect(wxWindow& window, const wxString& label);
wxRect RowRect(wxWindow& window, const wxString& text);

}  // namespace kestrel::workbench
