#include "Owner.h"

#include <wx/app.h>
#include <wx/dialog.h>
#include <wx/thread.h>

#include "WindowNumber.h"

namespace isolation {
namespace {

/// The window that the user works in: the toolkit may not yet take a dialog for active that has just been opened.
wxWindow* Front() {
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

std::uint64_t OwnerFor(scc::WindowHandle given) {
  const auto* app = wxAppConsole::GetInstance();
  auto* const front = app != nullptr && app->IsGUI() && wxIsMainThread() ? Front() : nullptr;
  return WindowNumber(given, front);
}

}  // namespace isolation
