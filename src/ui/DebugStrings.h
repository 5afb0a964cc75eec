#pragma once

#include "host/Text.h"

constexpr TResString sDebugCaption{"Debug"};
constexpr TResString sDebugClear{"C&lear"};
