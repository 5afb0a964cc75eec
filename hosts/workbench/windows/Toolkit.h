// What the library below the toolkit can do and the toolkit does not offer.  Each function does nothing where that
// library is another one.
#pragma once

#include <wx/gdicmn.h>

#include <functional>

class wxMenu;
class wxMenuBar;
class wxMenuItem;
class wxScreenDC;

namespace kestrel::workbench {

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

/// Whether `menu` is on the screen.  Where the toolkit announces a menu before it shows it (all but GTK): false.
bool IsOnScreen(const wxMenu& menu);
/// Calls `body` as soon as the toolkit has done what it is doing now, before the keys and clicks that wait.
void CallNext(std::function<void()> body);
/// Puts the keyboard's selection in `menu`, which is on the screen, on its first enabled item; leaves it alone where
/// there is none, as after a click.
void SelectFirstItem(wxMenu& menu);
/// Opens a menu of the menu bar, as its access key does.
void OpenFromBar(wxMenu& menu);

/// While it lives, a menu that is on the screen closes before a window comes up, whoever shows it: an open menu holds the
/// keyboard and the mouse, and the window would not get them.
class TMenuGivesWay {
 public:
  /// Both are borrowed; `menu` is one of `bar`.
  TMenuGivesWay(const wxMenuBar& bar, const wxMenu& menu);
  ~TMenuGivesWay();
  TMenuGivesWay(const TMenuGivesWay&) = delete;
  TMenuGivesWay& operator=(const TMenuGivesWay&) = delete;

  /// Whether a window came up.
  bool HasGivenWay() const { return hasGivenWay_; }

 private:
  void WindowComesUp();

  const wxMenuBar& bar_;
  const wxMenu& menu_;
  unsigned long hook_ = 0;
  bool hasGivenWay_ = false;
};

}  // namespace kestrel::workbench
