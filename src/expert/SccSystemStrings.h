// Texts of the host-access routines.
#pragma once

#include "system/Text.h"

namespace kestrel::addin {

inline constexpr TResString sMessageWindowNAError{"Message window is not available"};
inline constexpr TResString sIDESourceNAError{
    "Source interface is ot available"};  // "ot" is intentional: users search for this message
inline constexpr TResString sEmptyString{""};

}  // namespace kestrel::addin
