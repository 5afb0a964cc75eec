#include "HostOwner.h"

#include <gdk/gdkx.h>
#include <gtk/gtk.h>

#include "Link.h"

namespace isolation {
namespace {

Window owner = 0;
std::uint32_t shown = 0;

/// The widget that a signal is about, if it is a window of the size of a dialog; nullptr for menus and tips.
GtkWindow* WindowOf(const GValue* values) {
  auto* const widget = g_value_get_object(values);
  if (!GTK_IS_WINDOW(widget)) return nullptr;
  auto* const window = GTK_WINDOW(widget);
  return gtk_window_get_window_type(window) == GTK_WINDOW_TOPLEVEL ? window : nullptr;
}

/// Also of windows that the provider gives no parent: it does not know one of this process.
gboolean OnRealize(GSignalInvocationHint*, guint, const GValue* values, gpointer) {
  auto* const window = WindowOf(values);
  if (window == nullptr || owner == 0 || gtk_window_get_transient_for(window) != nullptr) return TRUE;
  auto* const own = gtk_widget_get_window(GTK_WIDGET(window));
  if (own == nullptr || !GDK_IS_X11_WINDOW(own)) return TRUE;
  auto* const foreign = gdk_x11_window_foreign_new_for_display(gdk_window_get_display(own), owner);
  if (foreign == nullptr) return TRUE;
  gdk_window_set_transient_for(own, foreign);
  g_object_unref(foreign);
  return TRUE;
}

template <int Change>
gboolean OnShown(GSignalInvocationHint*, guint, const GValue* values, gpointer) {
  if (WindowOf(values) == nullptr) return TRUE;
  shown += static_cast<std::uint32_t>(Change);
  link::Write(Kind::Windows, Body(shown));
  return TRUE;
}

}  // namespace

scc::WindowHandle TakeOwner(std::uint64_t window) {
  owner = static_cast<Window>(window);
  return nullptr;  // another toolkit object's address, of another process
}

void WatchWindows() {
  constexpr std::pair<const char*, GSignalEmissionHook> kHooks[] = {
      {"realize", OnRealize}, {"map", OnShown<1>}, {"unmap", OnShown<-1>}};
  g_type_class_unref(g_type_class_ref(GTK_TYPE_WINDOW));  // the signals exist from here on
  for (const auto& [signal, hook] : kHooks)
    g_signal_add_emission_hook(g_signal_lookup(signal, GTK_TYPE_WIDGET), 0, hook, nullptr, nullptr);
}

}  // namespace isolation
