#include "workbench/windows/Screenshot.h"

#include <wx/bitmap.h>
#include <wx/dcmemory.h>
#include <wx/dcscreen.h>
#include <wx/image.h>

bool SaveScreenshot(const std::string& fileName) {
  wxScreenDC screen;
  const wxSize size = screen.GetSize();
  wxBitmap bitmap(size.GetWidth(), size.GetHeight());
  wxMemoryDC memory(bitmap);
  // GTK copies the screen once and shows that copy again until it believes the screen changed: one point of the desktop,
  // behind all windows, is enough to tell it.
  screen.SetPen(*wxBLACK_PEN);
  screen.DrawPoint(0, 0);
  memory.Blit(wxPoint(0, 0), size, &screen, wxPoint(0, 0));
  memory.SelectObject(wxNullBitmap);
  return bitmap.ConvertToImage().SaveFile(wxString::FromUTF8(fileName), wxBITMAP_TYPE_PNG);
}
