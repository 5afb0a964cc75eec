// The mouse wheel over drop-down lists.
#pragma once

#include <wx/window.h>

namespace kestrel {

/// Makes the wheel leave a closed drop-down list as it is.  The toolkit's own would choose the next item, which acts at
/// once, while the user only wants to scroll what is around it.
inline void IgnoreWheel(wxWindow& list) {
  list.Bind(wxEVT_MOUSEWHEEL, [](wxMouseEvent&) {});
}

}  // namespace kestrel
