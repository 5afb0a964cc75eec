// Working the main menu as a user does: open the menu, look, click.
#pragma once

#include <wx/gdicmn.h>

class wxFrame;
class wxMenu;
class wxMenuBar;
class wxMenuItem;

namespace kestrel::workbench {

/// Opens the menus of a path "Menu|Item" one after the other, so that each is brought up to date, and answers the last
/// part's item; nullptr when there is none.  The item is borrowed until the menu changes.
wxMenuItem* OpenMenuItem(wxFrame& frame, const wxString& path);
/// The item of a path "Submenu|Item" below `menu`; nullptr for none.
wxMenuItem* FindMenuItem(const wxMenu& menu, const wxString& path);
void ClickMenuItem(wxFrame& frame, const wxMenuItem& item);
/// Where the title of a menu "Menu", or the item of a path "Menu|Item" in a menu that is open, is on the screen; empty
/// for nowhere, and where the toolkit does not tell.
wxRect MenuRect(const wxMenuBar& bar, const wxString& path);

}  // namespace kestrel::workbench
