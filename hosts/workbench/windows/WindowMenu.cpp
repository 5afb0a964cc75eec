#include "workbench/windows/WindowMenu.h"

#include <wx/weakref.h>

namespace kestrel::workbench {

void AppendPackageWindows(wxFrame& mainFrame, wxMenu& menu) {
  bool first = true;
  for (wxWindow* window : wxTopLevelWindows) {
    auto* frame = dynamic_cast<wxFrame*>(window);
    if (!frame || frame == &mainFrame || frame->GetTitle().empty()) continue;
    if (std::exchange(first, false)) menu.AppendSeparator();
    const int id = menu.Append(wxID_ANY, wxControl::EscapeMnemonics(frame->GetTitle()))->GetId();
    const auto show = [shown = wxWeakRef<wxFrame>(frame)](wxCommandEvent&) {
      if (!shown) return;
      shown->Show();
      shown->Iconize(false);
      shown->Raise();
    };
    mainFrame.Bind(wxEVT_MENU, show, id);
  }
}

}  // namespace kestrel::workbench
