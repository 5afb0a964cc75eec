// Windows of packages in the View menu: a message window is hidden until the user shows it.
#pragma once

#include <wx/frame.h>
#include <wx/menu.h>

namespace kestrel::workbench {

/// Appends an item for each frame that packages have created; it shows and raises the frame.
void AppendPackageWindows(wxFrame& mainFrame, wxMenu& menu);

}  // namespace kestrel::workbench
