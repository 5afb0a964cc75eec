#include "workbench/windows/Toolkit.h"

#include <wx/dcscreen.h>
#include <wx/dynlib.h>
#include <wx/graphics.h>
#include <wx/log.h>
#include <wx/menu.h>

namespace {

/// A library that is in the process already, called without its headers.
class TLibrary {
 public:
  explicit TLibrary(const wxString& name) {
    const wxLogNull quiet;
    library_.Load(name, wxDL_DEFAULT | wxDL_VERBATIM | wxDL_QUIET);
  }
  template <class TFunction>
  TFunction Find(const wxString& name) const {
    return library_.IsLoaded() ? reinterpret_cast<TFunction>(library_.GetSymbol(name)) : nullptr;
  }

 private:
  wxDynamicLibrary library_;
};

/// Where a widget of GTK is on the screen.
[[maybe_unused]] wxRect WidgetRect(void* widget) {
  const TLibrary gtk("libgtk-3.so.0");
  const TLibrary gdk("libgdk-3.so.0");
  const auto isMapped = gtk.Find<int (*)(void* widget)>("gtk_widget_get_mapped");
  const auto window = gtk.Find<void* (*)(void* widget)>("gtk_widget_get_window");
  const auto allocation = gtk.Find<void (*)(void* widget, int rect[4])>("gtk_widget_get_allocation");
  const auto origin = gdk.Find<int (*)(void* window, int* x, int* y)>("gdk_window_get_origin");
  if (!isMapped || !window || !allocation || !origin || !widget || !isMapped(widget)) return {};
  int rect[4];  // x and y in the window, width, height
  int x = 0;
  int y = 0;
  allocation(widget, rect);
  origin(window(widget), &x, &y);
  return {x + rect[0], y + rect[1], rect[2], rect[3]};
}

}  // namespace

void ForgetScreenCopy(wxScreenDC& screen) {
  const TLibrary cairo("libcairo.so.2");
  const auto target = cairo.Find<void* (*)(void* context)>("cairo_get_target");
  const auto markDirty = cairo.Find<void (*)(void* surface)>("cairo_surface_mark_dirty");
  if (target && markDirty && screen.GetGraphicsContext())
    markDirty(target(screen.GetGraphicsContext()->GetNativeContext()));
}

void ShowMenuImages() {
  const TLibrary gtk("libgtk-3.so.0");
  const TLibrary objects("libgobject-2.0.so.0");
  const auto settings = gtk.Find<void* (*)()>("gtk_settings_get_default");
  const auto set = objects.Find<void (*)(void* object, const char* property, ...)>("g_object_set");
  if (settings && set) set(settings(), "gtk-menu-images", 1, nullptr);
}

wxRect TitleRect(const wxMenu& menu) {
  return [](const auto& m) {
    if constexpr (requires { m.m_owner; }) return WidgetRect(m.m_owner);
    return wxRect();
  }(menu);
}

wxRect ItemRect(const wxMenuItem& item) {
  return [](const auto& i) {
    if constexpr (requires { i.GetMenuItem(); }) return WidgetRect(i.GetMenuItem());
    return wxRect();
  }(item);
}

void CloseMenu(wxMenu& menu) {
  const TLibrary gtk("libgtk-3.so.0");
  const auto cancel = gtk.Find<void (*)(void* menuShell)>("gtk_menu_shell_cancel");
  [&](auto& m) {
    if constexpr (requires { m.m_menu; })
      if (cancel) cancel(m.m_menu);
  }(menu);
  const TLibrary user("user32.dll");
  if (const auto end = user.Find<int (*)()>("EndMenu")) end();
}

void TurnWheel(bool up) {
  const TLibrary x11("libX11.so.6");
  const TLibrary test("libXtst.so.6");
  const auto open = x11.Find<void* (*)(const char* display)>("XOpenDisplay");
  const auto close = x11.Find<int (*)(void* display)>("XCloseDisplay");
  const auto button = test.Find<int (*)(void*, unsigned, int pressed, unsigned long)>("XTestFakeButtonEvent");
  void* display = open && close && button ? open(nullptr) : nullptr;
  if (!display) return;
  for (const int pressed : {1, 0}) button(display, up ? 4 : 5, pressed, 0);
  close(display);  // what was sent is done by then
}
