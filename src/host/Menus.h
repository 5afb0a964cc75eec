// The IDE's main menu and action list.  A package describes its menu with these plain objects; the host shows them in
// its own toolkit and reads their state again whenever it is about to show the menu.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "host/Interface.h"

namespace kestrel {

/// A named command.  Captions mark their access key with '&'.  OnExecute runs on the user-interface thread and must
/// not let exceptions out.
struct TAction {
  std::string Name;
  std::string Caption;
  std::string Category;
  int ImageIndex = -1;  ///< in the package's own image list, then, once attached, in the host's; -1 for none
  bool Enabled = true;
  bool Visible = true;
  std::function<void()> OnExecute;
};

/// A menu item.  One with an Action takes caption and handler from it unless it has its own; an item shows and works
/// only when both it and its action are visible and enabled.
struct TMenuItem {
  std::string Name;
  std::string Caption;  ///< "-" is a separator; empty takes the action's
  TAction* Action = nullptr;
  int ImageIndex = -1;
  bool Enabled = true;
  bool Visible = true;
  /// Of the top item: called each time its menu opens, before the user can choose from it.  It may show windows: the host
  /// calls it where its toolkit can do with them, and the menu is out of the way while one is up.
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

/// Commands for one file, offered wherever the host shows a file: its project tree, its editor tabs.
struct TFileMenu {
  struct TItem {
    std::string Caption;                                         ///< "-" is a separator
    int ImageIndex = -1;                                         ///< in the host's image list; -1 for none
    std::function<void(const std::string& fileName)> OnExecute;  ///< must not let exceptions out
  };
  std::string Caption;  ///< of the submenu
  std::vector<TItem> Items;
  /// Whether the items can be used for that file now; asked each time the menu is about to show.  Must be quick.
  std::function<bool(const std::string& fileName)> IsEnabled;
};

/// The host's main menu, its action list and the action list's images.
class IOTAMenuServices : public virtual IInterface {
 public:
  static constexpr TGuid IID{0x7C3E5B40, 0x24A1, 0x4E0D, {0x9A, 0x11, 0x52, 0x6B, 0x0C, 0x7E, 0x31, 0x30}};
  /// Shows `top` in the main menu, before the host's last menu.  Borrowed until RemoveMenu.
  virtual void InsertMenu(TMenuItem& top) = 0;
  virtual void RemoveMenu(TMenuItem& top) = 0;
  /// Shows `menu` in the context menus of files.  Borrowed until RemoveFileMenu.
  virtual void InsertFileMenu(TFileMenu& menu) = 0;
  virtual void RemoveFileMenu(TFileMenu& menu) = 0;
  /// Puts the action into the host's action list (its shortcuts and toolbars).  Borrowed until DetachAction.
  virtual void AttachAction(TAction& action) = 0;
  virtual void DetachAction(TAction& action) = 0;
  /// Adds a picture, an SVG document of 16 by 16 units, to the host's image list and returns its index there.
  virtual int AddImage(const std::string& svg) = 0;
};

}  // namespace kestrel
