// The menus that are open on the screen; the toolkit does not expose them.
#pragma once

#include <wx/event.h>
#include <wx/eventfilter.h>

#include <set>

class wxMenu;

namespace kestrel::workbench {

/// One object per program, listening while it exists.
class TOpenMenus final : private wxEventFilter {
 public:
  TOpenMenus();
  ~TOpenMenus() override;
  static bool Any();
  /// Closes all, as Escape does.
  static void Close();

 private:
  int FilterEvent(wxEvent& event) override;

  std::set<wxMenu*> open_;  // borrowed until they announce that they close
};

}  // namespace kestrel::workbench
