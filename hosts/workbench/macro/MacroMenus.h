// Operates the main menu as a user does.
#pragma once

#include <wx/gdicmn.h>

class wxFrame;
class wxMenu;
class wxMenuBar;
class wxMenuItem;

namespace kestrel::workbench {

/// Opens the menus of a path "Menu|Item" one after the other, which updates them, and returns the item; null if there
/// is none. It is borrowed until the menu changes.
wxMenuItem* OpenMenuItem(wxFrame& frame, const wxString& path);
/// The item of a path "Submenu|Item" below `menu`; null if there is none.
wxMenuItem* FindMenuItem(const wxMenu& menu, const wxString& path);
void ClickMenuItem(const wxMenuItem& item);
/// The screen rectangle of the title of a menu "Menu", or of the item "Menu|Item" of an open menu; empty if it is not
/// shown or the toolkit does not expose it.
wxRect MenuRect(const wxMenuBar& bar, const wxString& path);

}  // namespace kestrel::workbench
