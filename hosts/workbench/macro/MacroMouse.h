// Working the program with the real mouse: the system sees a pointer, buttons and a wheel, as from a user's hand.
#pragma once

#include <string>

class wxTopLevelWindow;
class wxUIActionSimulator;

namespace kestrel::workbench {

class TMainFrame;

/// Moves the pointer onto the middle of what `kind` and `text` name: a "menu" of `frame` or an item of one that is open
/// ("Team", "Team|Add Files..."), a "row" of a list, tree or grid in `window`, the "list" behind a label, the "editor" of
/// a file, or a "button".  Answers an empty text, or why it could not.
std::string PointAt(wxUIActionSimulator& input, TMainFrame& frame, wxTopLevelWindow& window,
                    const std::string& kind, const std::string& text);
/// One click of "left", "middle" or "right", or one notch "up" or "down" of the wheel, where the pointer is.  Answers
/// an empty text, or that there is no such button.
std::string ClickMouse(wxUIActionSimulator& input, const std::string& button);

}  // namespace kestrel::workbench
