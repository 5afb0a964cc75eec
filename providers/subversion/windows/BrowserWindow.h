// The provider's own application: a walk through the repository.
#pragma once

#include <wx/treectrl.h>

#include "common/windows/WindowTools.h"
#include "subversion/svn/Browser.h"

namespace svnscc {

class BrowserWindow : public ToolWindow {
 public:
  /// Opens `address` if it is not empty, at the entry it names.
  BrowserWindow(wxWindow* parent, ProviderContext& context, Browser& browser, const std::string& address);

 private:
  wxSizer* CreateAddress(const std::string& address);
  wxWindow* CreateLists();
  wxSizer* CreateButtons();
  void BindKeys();

  void Open();
  void Refresh();
  void FillTree();
  void FillFolder(const wxTreeItemId& item);
  wxTreeItemId AppendFolder(const wxTreeItemId& parent, const std::string& path, const std::string& name);
  wxTreeItemId ChildNamed(const wxTreeItemId& parent, const std::string& name) const;
  /// Opens the tree down to `path`, and selects what it names; in a folder, the entry of that name.
  void GoTo(const std::string& path, const std::string& entry = "");
  void ShowFolder(const std::string& path);
  void ShowState();

  void Activate();
  void ShowTextOf();
  void ShowHistoryOf();
  void ShowPropertiesOf();
  const Entry* Chosen() const;
  /// The chosen entry's path, or the folder's.
  std::string ChosenPath() const;
  /// Runs what asks the repository; false, and the failure shown, when it fails.
  template <class Body>
  bool Try(Body&& body);

  ProviderContext& context_;
  Browser& browser_;
  std::string folder_;
  std::string problem_;
  wxComboBox* address_ = nullptr;
  wxTreeCtrl* tree_ = nullptr;
  RowList* list_ = nullptr;
  wxStaticText* message_ = nullptr;
  wxButton* text_ = nullptr;
  wxButton* history_ = nullptr;
  wxButton* properties_ = nullptr;
  wxButton* refresh_ = nullptr;
};

}  // namespace svnscc
