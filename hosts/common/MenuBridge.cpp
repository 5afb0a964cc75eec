#include "hosts/common/MenuBridge.h"

#include <wx/weakref.h>

#include <algorithm>
#include <utility>

#include "hosts/common/MenuRows.h"
#include "hosts/common/Toolkit.h"
#include "toolkit/WxText.h"

namespace kestrel {

namespace {
constexpr int kMenuImageSize = 16;

/// A greyed image at 100 % and 200 %; toolkits grey only the text of a disabled item.
wxBitmapBundle DisabledImage(const wxBitmapBundle& image) {
  const auto at = [&](int scale) {
    return image.GetBitmap(image.GetDefaultSize() * scale).ConvertToDisabled();
  };
  return wxBitmapBundle::FromBitmaps(at(1), at(2));
}
}  // namespace

/// A package's menu, and the toolkit's menu that shows it.
struct TMenuBridge::TTopMenu {
  TMenuItem* Top;
  wxWeakRef<wxMenu> Menu;  // the host may destroy it with its menu bar
  struct TRow {
    const TMenuItem* Item;
    int Image;
    wxMenuItem* Shown;
    bool Enabled;
  };
  std::vector<TRow> Rows;  // including separators; items of a submenu follow their parent
};

TMenuBridge::TMenuBridge(wxFrame& frame, const TPackageCaller& caller) : frame_(frame), caller_(caller) {
  frame_.Bind(wxEVT_MENU_OPEN, &TMenuBridge::OnMenuOpen, this);
}
TMenuBridge::~TMenuBridge() { frame_.Unbind(wxEVT_MENU_OPEN, &TMenuBridge::OnMenuOpen, this); }

void TMenuBridge::InsertMenu(TMenuItem& top) {
  tops_.push_back(std::make_unique<TTopMenu>(TTopMenu{&top, {}, {}}));
  if (auto* bar = frame_.GetMenuBar()) Place(*tops_.back(), *bar);
}

void TMenuBridge::ShowIn(wxMenuBar& bar) {
  for (const auto& top : tops_) {
    if (!top->Menu || top->Menu->GetMenuBar() != &bar) Place(*top, bar);
    Show(*top);
  }
}

void TMenuBridge::Place(TTopMenu& top, wxMenuBar& bar) {
  auto* menu = new wxMenu;
  menu->Bind(wxEVT_MENU, &TMenuBridge::OnMenu, this);
  top.Menu = menu;
  top.Rows.clear();
  Fill(top, *menu, top.Top->Items);
  bar.Insert(bar.GetMenuCount() - 1, menu, ToWx(top.Top->ShownCaption()));
}

void TMenuBridge::RemoveMenu(TMenuItem& top) {
  const auto found = std::ranges::find(tops_, &top, [](const auto& t) { return t->Top; });
  if (found == tops_.end()) return;
  wxMenu* menu = (*found)->Menu;
  wxMenuBar* bar = menu ? menu->GetMenuBar() : nullptr;
  for (std::size_t i = 0; bar && i < bar->GetMenuCount(); ++i)
    if (bar->GetMenu(i) == menu) {
      delete bar->Remove(i);
      break;
    }
  tops_.erase(found);
}

namespace {

int ImageIndexOf(const TMenuItem& item) {
  return item.ImageIndex < 0 && item.Action ? item.Action->ImageIndex : item.ImageIndex;
}

/// Changes the image of an item that is in a menu. Some ports need a call to show it.
template <class TItem>
void ChangeImage(TItem& item, const wxBitmapBundle& image) {
  item.SetBitmap(image);
  if constexpr (requires { item.SetupBitmaps(item.GetMenu()->GetWindow()); })
    item.SetupBitmaps(item.GetMenu()->GetWindow());
}

/// Sets the image of a new item. On Windows the toolkit draws the item: Wine's native menus show transparent pixels
/// black.
template <class TItem>
void ShowImage(TItem& item, const wxBitmapBundle& image) {
  if constexpr (requires { item.SetOwnerDrawn(); }) item.SetOwnerDrawn();
  if (image.IsOk()) item.SetBitmap(image);
}

/// The visible items below `items`, depth first, as a filled menu shows them.
void CollectRows(const std::vector<TMenuItem*>& items, std::vector<const TMenuItem*>& rows) {
  for (const TMenuItem* item : VisibleRows(items)) {
    rows.push_back(item);
    CollectRows(item->Items, rows);
  }
}

}  // namespace

void TMenuBridge::Refresh(TTopMenu& top) {
  if (top.Top->OnClick) caller_.Run(top.Top->Name, [&] { top.Top->OnClick(); });
  Show(top);
}

void TMenuBridge::Show(TTopMenu& top) {
  if (!top.Menu) return;
  std::vector<const TMenuItem*> rows;
  CollectRows(top.Top->Items, rows);
  const auto same = [](const TMenuItem* item, const TTopMenu::TRow& row) {
    return item == row.Item && ImageIndexOf(*item) == row.Image;
  };
  if (!std::ranges::equal(rows, top.Rows, same)) {
    // The items or an image changed. Otherwise the menu is kept: rebuilding an opening menu flickers, and a menu that
    // loses items keeps its height.
    top.Rows.clear();
    while (top.Menu->GetMenuItemCount() > 0) top.Menu->Destroy(top.Menu->FindItemByPosition(0));
    Fill(top, *top.Menu, top.Top->Items);
  }
  for (auto& row : top.Rows) {
    if (row.Item->IsSeparator()) continue;
    const wxString caption = ToWx(row.Item->ShownCaption());
    if (row.Shown->GetItemLabel() != caption) row.Shown->SetItemLabel(caption);
    const bool enabled = row.Item->IsEnabled();
    if (std::exchange(row.Enabled, enabled) == enabled) continue;
    row.Shown->Enable(enabled);
    if (const auto image = ImageOf(row.Image, enabled); image.IsOk()) ChangeImage(*row.Shown, image);
  }
}

void TMenuBridge::Fill(TTopMenu& top, wxMenu& menu, const std::vector<TMenuItem*>& items) {
  for (const TMenuItem* item : VisibleRows(items)) AppendItem(top, menu, *item);
}

void TMenuBridge::AppendItem(TTopMenu& top, wxMenu& menu, const TMenuItem& item) {
  if (item.IsSeparator()) {
    top.Rows.push_back({&item, ImageIndexOf(item), menu.AppendSeparator(), true});
    return;
  }
  auto submenu = item.Items.empty() ? nullptr : std::make_unique<wxMenu>();
  if (submenu) submenu->Bind(wxEVT_MENU, &TMenuBridge::OnMenu, this);
  auto* shown = new wxMenuItem(&menu, wxID_ANY, ToWx(item.ShownCaption()), "", wxITEM_NORMAL, submenu.get());
  const bool enabled = item.IsEnabled();
  ShowImage(*shown, ImageOf(ImageIndexOf(item), enabled));
  menu.Append(shown);
  shown->Enable(enabled);
  top.Rows.push_back({&item, ImageIndexOf(item), shown, enabled});
  if (submenu) Fill(top, *submenu.release(), item.Items);
}

wxBitmapBundle TMenuBridge::ImageAt(int index) const {
  const bool known = index >= 0 && static_cast<std::size_t>(index) < images_.size();
  return known ? images_[static_cast<std::size_t>(index)] : wxBitmapBundle();
}

wxBitmapBundle TMenuBridge::ImageOf(int index, bool enabled) const {
  const auto image = ImageAt(index);
  return enabled || !image.IsOk() ? image : DisabledImage(image);
}

void TMenuBridge::ShowAll() {
  for (const auto& top : tops_) Show(*top);
}

void TMenuBridge::RefreshAll() {
  for (const auto& top : tops_) Refresh(*top);
}

void TMenuBridge::AppendFileMenus(wxMenu& menu, const std::string& fileName) const {
  for (const TFileMenu* fileMenu : fileMenus_) {
    bool enabled = true;
    if (fileMenu->IsEnabled) caller_.Run(fileMenu->Caption, [&] { enabled = fileMenu->IsEnabled(fileName); });
    auto* submenu = new wxMenu;
    for (const TFileMenu::TItem& item : fileMenu->Items) {
      if (item.Caption == "-") {
        submenu->AppendSeparator();
        continue;
      }
      bool itemEnabled = enabled;
      if (enabled && item.IsEnabled)
        caller_.Run(item.Caption, [&] { itemEnabled = item.IsEnabled(fileName); });
      auto* shown = new wxMenuItem(submenu, wxID_ANY, ToWx(item.Caption));
      ShowImage(*shown, ImageOf(item.ImageIndex, itemEnabled));
      submenu->Append(shown)->Enable(itemEnabled);
      submenu->Bind(
          wxEVT_MENU,
          [&item, fileName, this](wxCommandEvent&) {
            caller_.Run(item.Caption, [&] { item.OnExecute(fileName); });
          },
          shown->GetId());
    }
    menu.AppendSubMenu(submenu, ToWx(fileMenu->Caption));
  }
}

void TMenuBridge::OnMenuOpen(wxMenuEvent& event) {
  event.Skip();
  auto* top = FindTop(event.GetMenu());
  if (!top || reopening_) return;
  if (!IsOnScreen(*top->Menu)) return Refresh(*top);
  // GTK is opening the menu, and a window shown now would crash it.
  CallNext([this, menu = top->Menu] {
    if (menu) RefreshOnScreen(*menu);
  });
}

void TMenuBridge::RefreshOnScreen(wxMenu& menu) {
  auto* top = FindTop(&menu);
  if (!top || !IsOnScreen(menu)) return;
  const TMenuCloser closer(*menu.GetMenuBar(), menu);
  Refresh(*top);
  if (!closer.HasClosed()) return SelectFirstItem(menu);
  reopening_ = true;  // its items are up to date already
  OpenFromBar(menu);
  reopening_ = false;
}

TMenuBridge::TTopMenu* TMenuBridge::FindTop(const wxMenu* menu) const {
  const auto found = std::ranges::find(tops_, menu, [](const auto& top) { return top->Menu.get(); });
  return found != tops_.end() ? found->get() : nullptr;
}

void TMenuBridge::OnMenu(wxCommandEvent& event) {
  for (const auto& top : tops_)
    for (const auto& row : top->Rows) {
      if (row.Item->IsSeparator() || row.Shown->GetId() != event.GetId()) continue;
      const TMenuItem& clicked = *row.Item;  // Click may rebuild or remove the menu
      if (clicked.IsEnabled()) caller_.Run(clicked.Name, [&] { clicked.Click(); });
      return;
    }
  event.Skip();
}

void TMenuBridge::AttachAction(TAction& action) {
  if (std::ranges::find(actions_, &action) == actions_.end()) actions_.push_back(&action);
}

void TMenuBridge::DetachAction(TAction& action) { std::erase(actions_, &action); }

int TMenuBridge::AddImage(const std::string& svg) {
  images_.push_back(wxBitmapBundle::FromSVG(svg.c_str(), {kMenuImageSize, kMenuImageSize}));
  return static_cast<int>(images_.size()) - 1;
}

}  // namespace kestrel
