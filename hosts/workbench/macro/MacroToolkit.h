// Functions that the toolkit lacks; each does nothing on ports other than GTK.
#pragma once

#include <wx/gdicmn.h>

class wxMenu;
class wxMenuItem;
class wxScreenDC;

namespace kestrel::workbench {

/// Marks the screen's surface as changed; otherwise cairo returns its first copy of the screen again.
void InvalidateScreenCopy(wxScreenDC& screen);
/// The screen rectangle of the title of a menu in the menu bar, and of an item of an open menu; empty if it is not shown.
wxRect TitleRect(const wxMenu& menu);
wxRect ItemRect(const wxMenuItem& item);
/// Turns the mouse wheel by one notch at the pointer's position.
void TurnWheel(bool up);

}  // namespace kestrel::workbench
