// Operates controls; each sends the events of the user's action and returns an empty string, or why it is not possible.
#pragma once

#include <wx/window.h>

#include <optional>
#include <string>

class wxUIActionSimulator;

namespace kestrel::workbench {

std::string PressButton(wxWindow& window, const wxString& label);
/// A check box or radio button of that label, or the row of a check list that shows `text` in a column.
std::string TickBox(wxWindow& window, const wxString& text, bool ticked);
/// The state of what TickBox would change; nullopt if there is no such box.
std::optional<bool> IsTicked(wxWindow& window, const wxString& text);
std::string SelectRow(wxWindow& window, const wxString& text);
std::string EditCell(wxWindow& window, const wxString& rowText, const wxString& column,
                     const wxString& value);
std::string TurnToPage(wxWindow& window, const wxString& caption);
std::string TypeText(wxWindow& window, const wxString& label, const wxString& text);
std::string ChooseItem(wxWindow& window, const wxString& label, const wxString& item);
/// Sends a key to the focused window through the system: "Escape", "Ctrl+Shift+F1", "A".
std::string PressKey(wxUIActionSimulator& input, const wxString& name);
/// Whether there is an enabled button of that label.
bool HasButton(wxWindow& window, const wxString& label);
/// The screen rectangles of that button, and of a row of a list, tree or grid that shows `text`; empty if not shown.
wxRect ButtonRect(wxWindow& window, const wxString& label);
wxRect RowRect(wxWindow& window, const wxString& text);

}  // namespace kestrel::workbench
