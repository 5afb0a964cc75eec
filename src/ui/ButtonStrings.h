// Buttons that several windows have.
#pragma once

#include "host/Text.h"

constexpr TResString sButtonOk{"&OK"};
constexpr TResString sButtonCancel{"&Cancel"};
constexpr TResString sButtonClose{"&Close"};
