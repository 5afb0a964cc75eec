// Texts of the progress window.
#pragma once

#include "host/Text.h"

constexpr TResString sFileOf{"File %d of %d"};
constexpr TResString sFiles{"%d files"};
