// Texts of the host-access routines.
#pragma once

#include "host/Text.h"

inline constexpr TResString sMessageWindowNAError{"Message window is not available"};
inline constexpr TResString sIDESourceNAError{"Source interface is ot available"};
inline constexpr TResString sEmptyString{""};
