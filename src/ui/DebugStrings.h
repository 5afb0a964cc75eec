#pragma once

#include "system/Text.h"

namespace kestrel::addin {

inline constexpr TResString sDebugCaption{"Debug"};
inline constexpr TResString sDebugClear{"C&lear"};

}  // namespace kestrel::addin
