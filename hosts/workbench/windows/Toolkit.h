// Workarounds below the toolkit, nearly all for GTK; each does nothing where it is not needed.
#pragma once

#include <functional>

class wxMenu;
class wxMenuBar;

namespace kestrel::workbench {

/// GTK leaves out the pictures of menu items by default; packages have reasons for theirs.
void ShowMenuImages();
/// Closes a menu that is open, and those that belong to it, as Escape does.
void CloseMenu(wxMenu& menu);

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
class TMenuCloser {
 public:
  /// Both are borrowed; `menu` is one of `bar`.
  TMenuCloser(const wxMenuBar& bar, const wxMenu& menu);
  ~TMenuCloser();
  TMenuCloser(const TMenuCloser&) = delete;
  TMenuCloser& operator=(const TMenuCloser&) = delete;

  /// Whether a window came up.
  bool HasClosed() const { return hasClosed_; }

 private:
  void OnWindowShown();

  const wxMenuBar& bar_;
  const wxMenu& menu_;
  unsigned long hook_ = 0;
  bool hasClosed_ = false;
};

}  // namespace kestrel::workbench
