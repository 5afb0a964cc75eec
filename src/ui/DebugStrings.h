#pragma once

#include "host/Text.h"

constexpr TResString sDebugCaption{"Debug"};
constexpr TResString sDebugClose{"&Close"};
constexpr TResString sDebugClear{"C&lear"};
