// The IDE's main menu and action list.  A package describes its menu with these plain objects.  The host shows them with
// its own toolkit and reads their state each time it is about to show the menu.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "host/Interface.h"

namespace kestrel {

/// A named command.  '&' in the caption precedes the access key.  OnExecute runs on the user-interface thread and must not
/// throw.
struct TAction {
  std::string Name;
  std::string Caption;
  std::string Category;
  int ImageIndex = -1;  ///< in the package's image list, after AttachAction() in the host's; -1 for none
  bool Enabled = true;
  bool Visible = true;
  std::function<void()> OnExecute;
};

/// A menu item.  Caption and handler default to those of its Action.  An item is visible or enabled only if its action is
/// as well.
struct TMenuItem {
  std::string Name;
  std::string Caption;  ///< "-" is a separator; empty means the action's
  TAction* Action = nullptr;
  int ImageIndex = -1;
  bool Enabled = true;
  bool Visible = true;
  /// For the top item: called each time its menu opens, before the user can choose an item.  It may show modal windows; the
  /// host must not show the menu while one is open.
  std::function<void()> OnClick;
  std::vector<TMenuItem*> Items;

  bool IsSeparator() const { return Caption == "-"; }
  const std::string& ShownCaption() const { return Caption.empty() && Action ? Action->Caption : Caption; }
  bool IsEnabled() const { return Enabled && (!Action || Action->Enabled); }
  bool IsVisible() const { return Visible && (!Action || Action->Visible); }
  void Click() const {
    if (OnClick)
      OnClick();
    else if (Action && Action->OnExecute)
      Action->OnExecute();
  }
};

/// Commands for one file, which the host offers in the context menus of files (project tree, editor tabs).
struct TFileMenu {
  struct TItem {
    std::string Caption;                                         ///< "-" is a separator
    int ImageIndex = -1;                                         ///< in the host's image list; -1 for none
    std::function<void(const std::string& fileName)> OnExecute;  ///< must not throw
    /// Whether this item is enabled for that file, if the menu is; null: always.
    std::function<bool(const std::string& fileName)> IsEnabled = {};
  };
  std::string Caption;  ///< of the submenu
  std::vector<TItem> Items;
  /// Whether any item is enabled for that file.  Called, like that of the items, each time the menu is about to show, so
  /// it must be fast.
  std::function<bool(const std::string& fileName)> IsEnabled;
};

/// The host's main menu, its action list and the action list's images.
class IOTAMenuServices : public virtual IInterface {
 public:
  static constexpr TGuid IID{0x7C3E5B40, 0x24A1, 0x4E0D, {0x9A, 0x11, 0x52, 0x6B, 0x0C, 0x7E, 0x31, 0x30}};
  /// Inserts `top` into the main menu, before the host's last menu.  Borrowed until RemoveMenu().
  virtual void InsertMenu(TMenuItem& top) = 0;
  virtual void RemoveMenu(TMenuItem& top) = 0;
  /// Adds `menu` to the context menus of files.  Borrowed until RemoveFileMenu().
  virtual void InsertFileMenu(TFileMenu& menu) = 0;
  virtual void RemoveFileMenu(TFileMenu& menu) = 0;
  /// Adds the action to the host's action list (shortcuts and toolbars).  Borrowed until DetachAction().
  virtual void AttachAction(TAction& action) = 0;
  virtual void DetachAction(TAction& action) = 0;
  /// Adds an SVG document of 16 by 16 units to the host's image list and returns its index.
  virtual int AddImage(const std::string& svg) = 0;
};

}  // namespace kestrel
