#include "workbench/windows/Toolkit.h"

#include <wx/dcscreen.h>
#include <wx/dynlib.h>
#include <wx/graphics.h>
#include <wx/log.h>

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
