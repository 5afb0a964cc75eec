#include "isolation/WindowId.h"

#include <gdk/gdkx.h>
#include <gtk/gtk.h>
#include <wx/window.h>

namespace kestrel::isolation {

std::uint64_t WindowId(scc::WindowHandle, wxWindow* fallback) {
  auto* const window = fallback != nullptr ? gtk_widget_get_window(fallback->GetHandle()) : nullptr;
  return window != nullptr && GDK_IS_X11_WINDOW(window) ? gdk_x11_window_get_xid(window) : 0;
}

void ReleaseOwner(std::uint64_t) {}

}  // namespace kestrel::isolation
