// Workarounds below the toolkit, nearly all for GTK; each does nothing where it is not needed.
#pragma once

#include <functional>

class wxMenu;
class wxMenuBar;

namespace kestrel {

/// Enables pictures of menu items, which GTK omits by default.
void ShowMenuImages();
/// Closes an open menu and its submenus, as Escape does.
void CloseMenu(wxMenu& menu);

/// Whether `menu` is on the screen. False on ports that announce a menu before they show it (all but GTK).
bool IsOnScreen(const wxMenu& menu);
/// Calls `body` when the toolkit has finished the current event, before queued keys and clicks.
void CallNext(std::function<void()> body);
/// Moves the keyboard selection of `menu`, which is on the screen, to its first enabled item; does nothing if there is
/// no selection, as after a click.
void SelectFirstItem(wxMenu& menu);
/// Opens a menu of the menu bar, as its access key does.
void OpenFromBar(wxMenu& menu);

/// While it exists, closes a menu that is on the screen before any window is shown: an open menu grabs keyboard and
/// mouse.
class TMenuCloser {
 public:
  /// Borrows both; `menu` belongs to `bar`.
  TMenuCloser(const wxMenuBar& bar, const wxMenu& menu);
  ~TMenuCloser();
  TMenuCloser(const TMenuCloser&) = delete;
  TMenuCloser& operator=(const TMenuCloser&) = delete;

  /// Whether a window was shown.
  bool HasClosed() const { return hasClosed_; }

 private:
  void OnWindowShown();

  const wxMenuBar& bar_;
  const wxMenu& menu_;
  unsigned long hook_ = 0;
  bool hasClosed_ = false;
};

}  // namespace kestrel
