// Labels of buttons that several windows have.
#pragma once

#include "system/Text.h"

namespace kestrel::addin {

inline constexpr TResString sButtonOk{"&OK"};
inline constexpr TResString sButtonCancel{"&Cancel"};
inline constexpr TResString sButtonClose{"&Close"};

}  // namespace kestrel::addin
