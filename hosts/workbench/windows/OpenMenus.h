// Which menus are open on the screen: the toolkit itself does not say.
#pragma once

#include <wx/event.h>

#include <set>

class wxMenu;

namespace kestrel::workbench {

/// One object for the program, listening for as long as it lives.
class TOpenMenus final : private wxEventFilter {
 public:
  TOpenMenus();
  ~TOpenMenus() override;
  static bool Any();
  /// Closes them, as Escape does.
  static void Close();

 private:
  int FilterEvent(wxEvent& event) override;

  std::set<wxMenu*> open_;  // borrowed, each until it says that it closes
};

}  // namespace kestrel::workbench
