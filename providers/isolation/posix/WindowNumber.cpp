#include "WindowNumber.h"

#include <gdk/gdkx.h>
#include <gtk/gtk.h>
#include <wx/window.h>

namespace isolation {

std::uint64_t WindowNumber(scc::WindowHandle, wxWindow* front) {
  auto* const window = front != nullptr ? gtk_widget_get_window(front->GetHandle()) : nullptr;
  return window != nullptr && GDK_IS_X11_WINDOW(window) ? gdk_x11_window_get_xid(window) : 0;
}

}  // namespace isolation
