// Windows of packages in the View menu: a message window is hidden until the user shows it.
#pragma once

#include <wx/frame.h>
#include <wx/menu.h>

namespace kestrel {

/// Appends an item, unless there is one, for each frame that packages have created, that is, for each without a parent;
/// it shows and raises the frame.
void AppendPackageWindows(const wxFrame& mainFrame, wxMenu& menu);

}  // namespace kestrel
