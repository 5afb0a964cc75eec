// Screenshots.
#pragma once

#include <string>

namespace kestrel::workbench {

/// Writes the whole screen as PNG; returns false on failure.
bool SaveScreenshot(const std::string& fileName);

}  // namespace kestrel::workbench
