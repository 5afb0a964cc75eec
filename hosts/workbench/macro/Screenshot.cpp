#include "workbench/macro/Screenshot.h"

#include <wx/bitmap.h>
#include <wx/dcmemory.h>
#include <wx/dcscreen.h>
#include <wx/image.h>

#include "toolkit/WxText.h"
#include "workbench/macro/MacroToolkit.h"

namespace kestrel::workbench {

bool SaveScreenshot(const std::string& fileName) {
  wxScreenDC screen;
  InvalidateScreenCopy(screen);
  const wxSize size = screen.GetSize();
  wxBitmap bitmap(size.GetWidth(), size.GetHeight());
  wxMemoryDC memory(bitmap);
  memory.Blit(wxPoint(0, 0), size, &screen, wxPoint(0, 0));
  memory.SelectObject(wxNullBitmap);
  wxImage image = bitmap.ConvertToImage();
  if (image.HasAlpha()) image.ClearAlpha();  // some systems leave undefined values in the fourth byte
  return image.SaveFile(ToWx(fileName), wxBITMAP_TYPE_PNG);
}

}  // namespace kestrel::workbench
