#include "isolation/host/WindowWatch.h"

#include <gdk/gdkx.h>
#include <gtk/gtk.h>

#include <utility>

#undef Bool  // of X11
#include "isolation/host/Callbacks.h"
#include "isolation/host/Channel.h"

namespace kestrel::isolation {
namespace {

Window owner = 0;
std::uint32_t shown = 0;
guint repeating = 0;  // the timer's number, while windows are shown

/// Returns the widget of a signal if it is a top-level window; null for others and for menus and tooltips.
GtkWindow* WindowOf(const GValue* values) {
  auto* const widget = g_value_get_object(values);
  if (!GTK_IS_WINDOW(widget)) return nullptr;
  auto* const window = GTK_WINDOW(widget);
  return gtk_window_get_window_type(window) == GTK_WINDOW_TOPLEVEL ? window : nullptr;
}

/// Sets the owner of windows without a parent: the provider has no parent window in this process.
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

void ReportShown() { channel::Write(FrameKind::WindowCount, Serialize(shown)); }

/// Shows the client that the windows respond.
gboolean RepeatShown(gpointer) {
  if (IsCallRunning()) ReportShown();
  return TRUE;
}

template <int Change>
gboolean OnShown(GSignalInvocationHint*, guint, const GValue* values, gpointer) {
  if (WindowOf(values) == nullptr) return TRUE;
  shown += static_cast<std::uint32_t>(Change);
  ReportShown();
  if (shown == 0)
    g_source_remove(std::exchange(repeating, 0));
  else if (repeating == 0)
    repeating = g_timeout_add(static_cast<guint>(kWindowCountInterval.count()), RepeatShown, nullptr);
  return TRUE;
}

}  // namespace

scc::WindowHandle SetOwnerWindow(std::uint64_t window) {
  owner = static_cast<Window>(window);
  return nullptr;  // the client's is an address in its process
}

void WatchWindows() {
  constexpr std::pair<const char*, GSignalEmissionHook> kHooks[] = {
      {"realize", OnRealize}, {"map", OnShown<1>}, {"unmap", OnShown<-1>}};
  g_type_class_unref(g_type_class_ref(GTK_TYPE_WINDOW));  // registers the signals
  for (const auto& [signal, hook] : kHooks)
    g_signal_add_emission_hook(g_signal_lookup(signal, GTK_TYPE_WIDGET), 0, hook, nullptr, nullptr);
}

}  // namespace kestrel::isolation
