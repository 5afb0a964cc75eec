#include "isolation/OwnerWindow.h"

#include <wx/app.h>
#include <wx/dialog.h>
#include <wx/thread.h>

#include "isolation/WindowId.h"

namespace kestrel::isolation {
namespace {

/// The window that the user works in.  The toolkit may not yet report a dialog as active that has just been opened.
wxWindow* FrontWindow() {
  wxWindow* const active = wxGetTopLevelParent(wxGetActiveWindow());
  wxWindow* modal = nullptr;
  for (wxWindow* window : wxTopLevelWindows) {
    const auto* dialog = dynamic_cast<wxDialog*>(window);
    if (dialog != nullptr && dialog->IsModal() && (modal == nullptr || modal != active)) modal = window;
  }
  if (modal != nullptr) return modal;
  return active != nullptr ? active : wxTheApp->GetTopWindow();
}

}  // namespace

std::uint64_t OwnerWindowId(scc::WindowHandle window) {
  const auto* app = wxAppConsole::GetInstance();
  auto* const front = app != nullptr && app->IsGUI() && wxIsMainThread() ? FrontWindow() : nullptr;
  return WindowId(window, front);
}

}  // namespace kestrel::isolation
