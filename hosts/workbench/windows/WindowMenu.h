// Windows of packages in the View menu: a package's message window is hidden until somebody shows it.
#pragma once

#include <wx/frame.h>
#include <wx/menu.h>

namespace kestrel::workbench {

/// Appends an item for each frame that packages have created so far; choosing it shows and raises the frame.
void AppendPackageWindows(wxFrame& mainFrame, wxMenu& menu);

}  // namespace kestrel::workbench
