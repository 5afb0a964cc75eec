#pragma once

#include "host/Text.h"

inline constexpr TResString sDebugCaption{"Debug"};
inline constexpr TResString sDebugClose{"&Close"};
inline constexpr TResString sDebugClear{"C&lear"};
