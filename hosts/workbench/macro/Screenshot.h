// Pictures of the screen.
#pragma once

#include <string>

namespace kestrel::workbench {

/// Writes the whole screen as PNG.  False when that failed.
bool SaveScreenshot(const std::string& fileName);

}  // namespace kestrel::workbench
