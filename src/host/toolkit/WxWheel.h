// Mouse wheel events of drop-down lists.
#pragma once

#include <wx/window.h>

namespace kestrel {

/// Makes a closed drop-down list ignore the mouse wheel.  By default the toolkit would select the next item although the
/// user wants to scroll the window around it.
inline void IgnoreWheel(wxWindow& list) {
  list.Bind(wxEVT_MOUSEWHEEL, [](wxMouseEvent&) {});
}

}  // namespace kestrel
