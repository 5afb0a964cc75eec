// What the library below the toolkit can do and the toolkit does not offer.  Each function does nothing where that
// library is another one.
#pragma once

#include <wx/gdicmn.h>

class wxMenu;
class wxMenuItem;
class wxScreenDC;

/// Under GTK the screen is a surface that keeps the first copy made of it and answers that one for ever, unless told
/// that the screen has changed.
void ForgetScreenCopy(wxScreenDC& screen);
/// GTK leaves out the pictures of menu items by default; packages have reasons for theirs.
void ShowMenuImages();
/// Where the title of a menu of the menu bar, and where an item of an open menu is on the screen; empty for nowhere.
wxRect TitleRect(const wxMenu& menu);
wxRect ItemRect(const wxMenuItem& item);
/// Closes a menu that is open, and those that belong to it, as Escape does.
void CloseMenu(wxMenu& menu);
/// Turns the mouse's wheel by one notch where the pointer is, as a user's hand does.
void TurnWheel(bool up);
