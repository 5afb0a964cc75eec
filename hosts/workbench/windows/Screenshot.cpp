#include "workbench/windows/Screenshot.h"

#include <wx/bitmap.h>
#include <wx/dcmemory.h>
#include <wx/dcscreen.h>
#include <wx/dynlib.h>
#include <wx/graphics.h>
#include <wx/image.h>
#include <wx/log.h>

namespace {

/// Under GTK the screen is a cairo surface that keeps the first copy made of it and answers that one for ever, unless
/// told that the screen has changed.  Cairo is there without its headers; other toolkits have none, and no such copy.
void ForgetEarlierCopy(wxScreenDC& screen) {
  const wxLogNull quiet;
  const wxDynamicLibrary cairo("libcairo.so.2", wxDL_DEFAULT | wxDL_VERBATIM);
  if (!cairo.IsLoaded() || !screen.GetGraphicsContext()) return;
  using TTarget = void* (*)(void* context);
  using TMarkDirty = void (*)(void* surface);
  const auto target = reinterpret_cast<TTarget>(cairo.GetSymbol("cairo_get_target"));
  const auto markDirty = reinterpret_cast<TMarkDirty>(cairo.GetSymbol("cairo_surface_mark_dirty"));
  if (target && markDirty) markDirty(target(screen.GetGraphicsContext()->GetNativeContext()));
}

}  // namespace

bool SaveScreenshot(const std::string& fileName) {
  wxScreenDC screen;
  ForgetEarlierCopy(screen);
  const wxSize size = screen.GetSize();
  wxBitmap bitmap(size.GetWidth(), size.GetHeight());
  wxMemoryDC memory(bitmap);
  memory.Blit(wxPoint(0, 0), size, &screen, wxPoint(0, 0));
  memory.SelectObject(wxNullBitmap);
  return bitmap.ConvertToImage().SaveFile(wxString::FromUTF8(fileName), wxBITMAP_TYPE_PNG);
}
