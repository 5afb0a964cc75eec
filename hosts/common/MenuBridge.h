// Shows the TMenuItem trees of packages in the main menu.
#pragma once

#include <wx/bmpbndl.h>
#include <wx/frame.h>
#include <wx/menu.h>

#include <map>
#include <memory>
#include <vector>

#include "host/Menus.h"
#include "hosts/common/Notifications.h"

namespace kestrel {

class TMenuBridge final : public IOTAMenuServices {
 public:
  /// Shows menus in the menu bar that `frame` has when they are inserted.
  TMenuBridge(wxFrame& frame, const TPackageCaller& caller);
  ~TMenuBridge() override;

  void InsertMenu(TMenuItem& top) override;
  void RemoveMenu(TMenuItem& top) override;
  void InsertFileMenu(TFileMenu& menu) override { fileMenus_.push_back(&menu); }
  void RemoveFileMenu(TFileMenu& menu) override { std::erase(fileMenus_, &menu); }
  /// Appends the packages' commands for one file to a context menu.
  void AppendFileMenus(wxMenu& menu, const std::string& fileName) const;
  void AttachAction(TAction& action) override;
  void DetachAction(TAction& action) override;
  int AddImage(const std::string& svg) override;
  void* QueryInterface(const TGuid& iid) noexcept override {
    return FindInterface<IOTAMenuServices>(this, iid);
  }

  /// The actions, in the order in which they were attached.
  const std::vector<TAction*>& Actions() const { return actions_; }
  wxBitmapBundle ImageAt(int index) const;
  /// Shows the menus in `bar`, before its last menu, unless they are there already. For hosts that replace their bar.
  void ShowIn(wxMenuBar& bar);
  /// Shows the present items without calling the packages. Called after they have started, so that a menu need not
  /// change when it opens for the first time.
  void ShowAll();
  /// Calls every package to update its commands, as opening its menu does.
  void RefreshAll();

 private:
  struct TTopMenu;
  void Refresh(TTopMenu& top);
  void Show(TTopMenu& top);
  wxBitmapBundle ImageOf(int index, bool enabled) const;
  void Place(TTopMenu& top, wxMenuBar& bar);
  void Fill(TTopMenu& top, wxMenu& menu, const std::vector<TMenuItem*>& items);
  void AppendItem(TTopMenu& top, wxMenu& menu, const TMenuItem& item);
  void OnMenuOpen(wxMenuEvent& event);
  /// Refreshes a menu that is on the screen. If the package shows windows meanwhile, the menu closes before and opens
  /// again after.
  void RefreshOnScreen(wxMenu& menu);
  TTopMenu* FindTop(const wxMenu* menu) const;
  void OnMenu(wxCommandEvent& event);

  wxFrame& frame_;
  const TPackageCaller& caller_;
  std::vector<std::unique_ptr<TTopMenu>> tops_;
  std::vector<TFileMenu*> fileMenus_;
  std::vector<TAction*> actions_;
  std::vector<wxBitmapBundle> images_;
  bool reopening_ = false;
};

}  // namespace kestrel
