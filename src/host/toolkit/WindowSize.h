// The size of a window that is not shown yet.
#pragma once

#include <wx/toplevel.h>

namespace kestrel {

/// Gives `window` that outer size, frame included as far as its size is known.
inline void SetOuterSize(wxTopLevelWindow& window, const wxSize& size) {
  window.SetSize(size);
  // Knowing the outer size alone, the toolkit on GTK waits with showing the window until the window manager has told
  // the frame's size, shrinks the inside then, and the window may end up in the corner of the screen.
  window.SetClientSize(window.GetClientSize());
}

}  // namespace kestrel
