#include "workbench/macro/MacroMouse.h"

#include <wx/ctrlsub.h>
#include <wx/menu.h>
#include <wx/uiaction.h>

#include <algorithm>

#include "system/System.h"
#include "toolkit/WxText.h"
#include "workbench/macro/MacroControls.h"
#include "workbench/macro/MacroMenus.h"
#include "workbench/macro/MacroStrings.h"
#include "workbench/macro/MacroToolkit.h"
#include "workbench/macro/WindowFinder.h"
#include "workbench/windows/EditorBook.h"
#include "workbench/windows/MainFrame.h"

namespace kestrel::workbench {

namespace {

// Each returns the screen rectangle; empty if it is not shown.

wxRect MenuPlace(TMainFrame& frame, wxTopLevelWindow&, const std::string& path) {
  return MenuRect(*frame.GetMenuBar(), ToWx(path));
}

wxRect RowPlace(TMainFrame&, wxTopLevelWindow& window, const std::string& text) {
  return RowRect(window, ToWx(text));
}

wxRect ListPlace(TMainFrame&, wxTopLevelWindow& window, const std::string& label) {
  const auto isList = [](wxWindow& w) { return dynamic_cast<wxItemContainerImmutable*>(&w) != nullptr; };
  const wxWindow* list = FindLabelled(window, ToWx(label), isList);
  return list ? list->GetScreenRect() : wxRect();
}

wxRect EditorPlace(TMainFrame& frame, wxTopLevelWindow&, const std::string& file) {
  const TEditorPage* page = frame.Book().FrontPage();
  return page && page->Editor().FileName() == FullPath(file) ? page->GetScreenRect() : wxRect();
}

wxRect ButtonPlace(TMainFrame&, wxTopLevelWindow& window, const std::string& label) {
  return ButtonRect(window, ToWx(label));
}

constexpr struct {
  std::string_view Name;
  wxRect (*Find)(TMainFrame&, wxTopLevelWindow&, const std::string&);
} kKinds[] = {{"menu", MenuPlace},
              {"row", RowPlace},
              {"list", ListPlace},
              {"editor", EditorPlace},
              {"button", ButtonPlace}};

constexpr struct {
  std::string_view Name;
  int Button;  // wxMOUSE_BTN_*
} kButtons[] = {{"left", wxMOUSE_BTN_LEFT}, {"middle", wxMOUSE_BTN_MIDDLE}, {"right", wxMOUSE_BTN_RIGHT}};

/// Distance between two clicks that are not a double click.
const wxPoint kAside{8, 0};

}  // namespace

std::string PointAt(wxUIActionSimulator& input, TMainFrame& frame, wxTopLevelWindow& window,
                    const std::string& kind, const std::string& text) {
  const auto row = std::ranges::find(kKinds, kind, [](const auto& k) { return k.Name; });
  const wxRect place = row == std::end(kKinds) ? wxRect() : row->Find(frame, window, text);
  if (place.IsEmpty()) return Format(sNoPlace, {kind, text});
  input.MouseMove(place.GetPosition() + place.GetSize() / 2);
  return {};
}

std::string ClickMouse(wxUIActionSimulator& input, const std::string& button) {
  if (button == "up" || button == "down") {
    TurnWheel(button == "up");
    return {};
  }
  const auto row = std::ranges::find(kButtons, button, [](const auto& b) { return b.Name; });
  if (row == std::end(kButtons)) return Format(sNoMouseButton, {button});
  static wxPoint last;
  if (wxGetMousePosition() == last) input.MouseMove(last + kAside);
  last = wxGetMousePosition();
  input.MouseClick(row->Button);
  return {};
}

}  // namespace kestrel::workbench
