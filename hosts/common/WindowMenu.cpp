#include "hosts/common/WindowMenu.h"

#include <wx/weakref.h>

namespace kestrel {

void AppendPackageWindows(const wxFrame& mainFrame, wxMenu& menu) {
  bool first = true;
  for (wxWindow* window : wxTopLevelWindows) {
    auto* frame = dynamic_cast<wxFrame*>(window);
    if (!frame || frame == &mainFrame || frame->GetParent() || frame->GetTitle().empty()) continue;
    const auto label = wxControl::EscapeMnemonics(frame->GetTitle());
    if (menu.FindItem(label) != wxNOT_FOUND) continue;
    if (std::exchange(first, false)) menu.AppendSeparator();
    const int id = menu.Append(wxID_ANY, label)->GetId();
    const auto show = [shown = wxWeakRef<wxFrame>(frame)](wxCommandEvent&) {
      if (!shown) return;
      shown->Show();
      shown->Iconize(false);
      shown->Raise();
    };
    menu.Bind(wxEVT_MENU, show, id);
  }
}

}  // namespace kestrel
