// The initial size of a window.
#pragma once

#include <wx/toplevel.h>

namespace kestrel {

/// Sets the outer size of a window that is not shown yet.
inline void SetOuterSize(wxTopLevelWindow& window, const wxSize& size) {
  window.SetSize(size);
  // With the outer size alone, GTK waits until the window manager reports the frame's size before it shows the window, then
  // shrinks it, and may place it in the corner of the screen.
  window.SetClientSize(window.GetClientSize());
}

}  // namespace kestrel
