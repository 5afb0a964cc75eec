#include "workbench/windows/OpenMenus.h"

#include "hosts/common/Toolkit.h"

namespace kestrel::workbench {

namespace {
TOpenMenus* theMenus = nullptr;
}

TOpenMenus::TOpenMenus() {
  theMenus = this;
  wxEvtHandler::AddFilter(this);
}

TOpenMenus::~TOpenMenus() {
  wxEvtHandler::RemoveFilter(this);
  theMenus = nullptr;
}

bool TOpenMenus::Any() { return theMenus && !theMenus->open_.empty(); }

void TOpenMenus::Close() {
  const auto open = theMenus ? theMenus->open_ : std::set<wxMenu*>();
  for (wxMenu* menu : open)
    if (theMenus->open_.contains(menu)) CloseMenu(*menu);  // closing a menu closes its submenus
}

int TOpenMenus::FilterEvent(wxEvent& event) {
  const auto* menu = dynamic_cast<const wxMenuEvent*>(&event);
  if (menu && event.GetEventType() == wxEVT_MENU_OPEN) open_.insert(menu->GetMenu());
  if (menu && event.GetEventType() == wxEVT_MENU_CLOSE) open_.erase(menu->GetMenu());
  return Event_Skip;
}

}  // namespace kestrel::workbench
