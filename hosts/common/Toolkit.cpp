#include "hosts/common/Toolkit.h"

#include <wx/app.h>
#include <wx/menu.h>

#include <cstdint>
#include <utility>

#include "hosts/common/LoadedLibrary.h"

namespace kestrel {

namespace {

const TLoadedLibrary& Gtk() {
  static const TLoadedLibrary gtk("libgtk-3.so.0");
  return gtk;
}
const TLoadedLibrary& Objects() {
  static const TLoadedLibrary objects("libgobject-2.0.so.0");
  return objects;
}

/// The GTK widget of a menu or menu bar, and of the item that opens a menu; null on other ports.
template <class TMenu>
void* WidgetOf(const TMenu& menu) {
  if constexpr (requires { menu.m_menubar; }) return menu.m_menubar;
  if constexpr (requires { menu.m_menu; }) return menu.m_menu;
  return nullptr;
}
template <class TMenu>
void* OpenerOf(const TMenu& menu) {
  if constexpr (requires { menu.m_owner; }) return menu.m_owner;
  return nullptr;
}

/// Calls a GTK function with a widget and, optionally, a flag; does nothing if the widget is null.
template <class TResult = void, class... TArguments>
TResult CallGtk(const char* name, void* widget, TArguments... arguments) {
  const auto function = widget ? Gtk().Find<TResult (*)(void*, TArguments...)>(name) : nullptr;
  return function ? function(widget, arguments...) : TResult();
}

/// Whether the widget is a framed window, unlike menus and tool tips.
bool IsFramedWindow(void* widget) {
  const auto typeOfWindows = Gtk().Find<std::size_t (*)()>("gtk_window_get_type");
  const auto isA = Objects().Find<int (*)(void*, std::size_t)>("g_type_check_instance_is_a");
  return typeOfWindows && isA && isA(widget, typeOfWindows()) &&
         CallGtk<int>("gtk_window_get_window_type", widget) == 0;
}

unsigned ShowSignal() {
  const auto lookUp = Objects().Find<unsigned (*)(const char*, std::size_t)>("g_signal_lookup");
  const auto typeOfWidgets = Gtk().Find<std::size_t (*)()>("gtk_widget_get_type");
  return lookUp && typeOfWidgets ? lookUp("show", typeOfWidgets()) : 0;
}

}  // namespace

void ShowMenuImages() {
  const auto settings = Gtk().Find<void* (*)()>("gtk_settings_get_default");
  const auto set = Objects().Find<void (*)(void* object, const char* property, ...)>("g_object_set");
  if (settings && set) set(settings(), "gtk-menu-images", 1, nullptr);
}

void CloseMenu(wxMenu& menu) {
  const TLoadedLibrary gtk("libgtk-3.so.0");
  const auto cancel = gtk.Find<void (*)(void* menuShell)>("gtk_menu_shell_cancel");
  [&](auto& m) {
    if constexpr (requires { m.m_menu; })
      if (cancel) cancel(m.m_menu);
  }(menu);
  const TLoadedLibrary user("user32.dll");
  if (const auto end = user.Find<int (*)()>("EndMenu")) end();
}

bool IsOnScreen(const wxMenu& menu) { return CallGtk<int>("gtk_widget_get_mapped", WidgetOf(menu)) != 0; }

void CallNext(std::function<void()> body) {
  constexpr int kBeforeEvents = -100;
  using TCall = std::function<void()>;
  using TSource = int (*)(void*);
  using TAdd = unsigned (*)(int priority, TSource, void* data, void (*destroy)(void*));
  static const TLoadedLibrary glib("libglib-2.0.so.0");
  static const auto add = glib.Find<TAdd>("g_idle_add_full");
  if (!add) return wxTheApp->CallAfter(std::move(body));
  const auto call = [](void* data) {
    (*static_cast<TCall*>(data))();
    return 0;  // remove the source
  };
  add(kBeforeEvents, call, new TCall(std::move(body)), [](void* data) { delete static_cast<TCall*>(data); });
}

void SelectFirstItem(wxMenu& menu) {
  if (CallGtk<void*>("gtk_menu_shell_get_selected_item", WidgetOf(menu)))
    CallGtk<void>("gtk_menu_shell_select_first", WidgetOf(menu), 1);
}

void OpenFromBar(wxMenu& menu) { CallGtk<int>("gtk_widget_mnemonic_activate", OpenerOf(menu), 0); }

TMenuCloser::TMenuCloser(const wxMenuBar& bar, const wxMenu& menu) : bar_(bar), menu_(menu) {
  struct TValue {  // GValue; only the first member is used
    std::size_t Type;
    std::uint64_t Data[2];
  };
  using THook = int (*)(void* hint, unsigned count, const TValue* values, void* data);
  using TAdd = unsigned long (*)(unsigned signal, unsigned detail, THook, void* data, void (*destroy)(void*));
  const auto add = Objects().Find<TAdd>("g_signal_add_emission_hook");
  if (!add || !WidgetOf(menu)) return;
  const THook hook = [](void*, unsigned, const TValue* values, void* data) {
    const auto peek = Objects().Find<void* (*)(const TValue*)>("g_value_peek_pointer");
    if (IsFramedWindow(peek(values))) static_cast<TMenuCloser*>(data)->OnWindowShown();
    return 1;  // keep the hook
  };
  hook_ = add(ShowSignal(), 0, hook, this, nullptr);
}

TMenuCloser::~TMenuCloser() {
  const auto remove = Objects().Find<void (*)(unsigned, unsigned long)>("g_signal_remove_emission_hook");
  if (hook_ && remove) remove(ShowSignal(), hook_);
}

void TMenuCloser::OnWindowShown() {
  hasClosed_ = true;  // some dialogs of the toolkit have closed the menu already
  if (IsOnScreen(menu_)) CallGtk<void>("gtk_menu_shell_cancel", WidgetOf(bar_));
}

}  // namespace kestrel
