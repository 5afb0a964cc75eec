#include "workbench/macro/MacroToolkit.h"

#include <wx/dcscreen.h>
#include <wx/graphics.h>
#include <wx/menu.h>

#include "hosts/common/LoadedLibrary.h"

namespace kestrel::workbench {

namespace {

/// The screen rectangle of a GTK widget.
[[maybe_unused]] wxRect WidgetRect(void* widget) {
  const TLoadedLibrary gtk("libgtk-3.so.0");
  const TLoadedLibrary gdk("libgdk-3.so.0");
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

void InvalidateScreenCopy(wxScreenDC& screen) {
  const TLoadedLibrary cairo("libcairo.so.2");
  const auto target = cairo.Find<void* (*)(void* context)>("cairo_get_target");
  const auto markDirty = cairo.Find<void (*)(void* surface)>("cairo_surface_mark_dirty");
  if (target && markDirty && screen.GetGraphicsContext())
    markDirty(target(screen.GetGraphicsContext()->GetNativeContext()));
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

void TurnWheel(bool up) {
  const TLoadedLibrary x11("libX11.so.6");
  const TLoadedLibrary test("libXtst.so.6");
  const auto open = x11.Find<void* (*)(const char* display)>("XOpenDisplay");
  const auto close = x11.Find<int (*)(void* display)>("XCloseDisplay");
  const auto button = test.Find<int (*)(void*, unsigned, int pressed, unsigned long)>("XTestFakeButtonEvent");
  void* display = open && close && button ? open(nullptr) : nullptr;
  if (!display) return;
  for (const int pressed : {1, 0}) button(display, up ? 4 : 5, pressed, 0);
  close(display);  // flushes
}

}  // namespace kestrel::workbench
