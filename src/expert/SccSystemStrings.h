// Texts of the host-access routines.
#pragma once

#include "host/Text.h"

constexpr TResString sMessageWindowNAError{"Message window is not available"};
constexpr TResString sIDESourceNAError{
    "Source interface is ot available"};  // "ot" is meant: it always read so
constexpr TResString sEmptyString{""};
