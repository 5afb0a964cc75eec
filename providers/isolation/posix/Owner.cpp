#include "Owner.h"

#include <gdk/gdkx.h>
#include <gtk/gtk.h>
#include <wx/app.h>
#include <wx/dialog.h>
#include <wx/thread.h>

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

std::uint64_t OwnerFor(scc::WindowHandle) {
  const auto* app = wxAppConsole::GetInstance();
  if (app == nullptr || !app->IsGUI() || !wxIsMainThread()) return 0;
  auto* const window = Front();
  auto* const widget = window != nullptr ? gtk_widget_get_window(window->GetHandle()) : nullptr;
  return widget != nullptr && GDK_IS_X11_WINDOW(widget) ? gdk_x11_window_get_xid(widget) : 0;
}

}  // namespace isolation
