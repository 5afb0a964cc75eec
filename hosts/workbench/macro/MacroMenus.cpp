#include "workbench/macro/MacroMenus.h"

#include <wx/frame.h>
#include <wx/menu.h>
#include <wx/tokenzr.h>

#include "workbench/macro/MacroToolkit.h"
#include "workbench/macro/WindowFinder.h"

namespace kestrel::workbench {

namespace {

wxMenu* TopMenu(const wxMenuBar& bar, const wxString& label) {
  for (std::size_t i = 0; i < bar.GetMenuCount(); ++i)
    if (SameLabel(bar.GetMenuLabel(i), label)) return bar.GetMenu(i);
  return nullptr;
}

wxMenuItem* ItemOf(const wxMenu& menu, const wxString& label) {
  for (wxMenuItem* item : menu.GetMenuItems())
    if (!item->IsSeparator() && SameLabel(item->GetItemLabelText(), label)) return item;
  return nullptr;
}

void Open(wxFrame& frame, wxMenu& menu) {
  for (const auto type : {wxEVT_MENU_OPEN, wxEVT_MENU_CLOSE}) {
    wxMenuEvent event(type, 0, &menu);
    event.SetEventObject(&menu);
    frame.HandleWindowEvent(event);
  }
  menu.UpdateUI();
}

}  // namespace

wxMenuItem* OpenMenuItem(wxFrame& frame, const wxString& path) {
  wxStringTokenizer parts(path, "|");
  wxMenu* menu = TopMenu(*frame.GetMenuBar(), parts.GetNextToken());
  wxMenuItem* item = nullptr;
  while (menu) {
    Open(frame, *menu);
    item = ItemOf(*menu, parts.GetNextToken());
    if (!parts.HasMoreTokens()) return item;
    menu = item ? item->GetSubMenu() : nullptr;
  }
  return nullptr;
}

wxMenuItem* FindMenuItem(const wxMenu& menu, const wxString& path) {
  wxStringTokenizer parts(path, "|");
  wxMenuItem* item = ItemOf(menu, parts.GetNextToken());
  while (item && parts.HasMoreTokens())
    item = item->GetSubMenu() ? ItemOf(*item->GetSubMenu(), parts.GetNextToken()) : nullptr;
  return item;
}

void ClickMenuItem(const wxMenuItem& item) { item.GetMenu()->SendEvent(item.GetId()); }

wxRect MenuRect(const wxMenuBar& bar, const wxString& path) {
  const wxMenu* menu = TopMenu(bar, path.BeforeFirst('|'));
  if (!menu || !path.Contains("|")) return menu ? TitleRect(*menu) : wxRect();
  const wxMenuItem* item = FindMenuItem(*menu, path.AfterFirst('|'));
  return item ? ItemRect(*item) : wxRect();
}

}  // namespace kestrel::workbench
