// Operates the program with the mouse: the system sees a pointer, buttons and a wheel.
#pragma once

#include <string>

class wxTopLevelWindow;
class wxUIActionSimulator;

namespace kestrel::workbench {

class TMainFrame;

/// Moves the pointer to the centre of what `kind` and `text` name: a "menu" of `frame` or an item of an open one
/// ("Team", "Team|Add Files..."), a "row" of a list, tree or grid in `window`, the "list" of a label, the "editor" of a
/// file, or a "button". Returns an empty string, or why it is not possible.
std::string PointAt(wxUIActionSimulator& input, TMainFrame& frame, wxTopLevelWindow& window,
                    const std::string& kind, const std::string& text);
/// Clicks "left", "middle" or "right", or turns the wheel "up" or "down" by one notch, at the pointer. Returns an empty
/// string, or an error if there is no such button.
std::string ClickMouse(wxUIActionSimulator& input, const std::string& button);

}  // namespace kestrel::workbench
