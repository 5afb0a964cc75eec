#pragma once

namespace kestrel::workbench {

inline constexpr const char* kWorkbenchVersion = WORKBENCH_VERSION;

}  // namespace kestrel::workbench
