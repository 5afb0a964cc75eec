#pragma once

inline constexpr const char* kWorkbenchVersion = WORKBENCH_VERSION;
