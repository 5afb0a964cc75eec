// Texts of the progress window.
#pragma once

#include "system/Text.h"

namespace kestrel::addin {

inline constexpr TResString sFileOf{"File %d of %d"};
inline constexpr TResString sFiles{"%d files"};

}  // namespace kestrel::addin
