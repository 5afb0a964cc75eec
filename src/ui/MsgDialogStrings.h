#pragma once

#include "host/Text.h"

inline constexpr TResString sMsgDialogCaption{"Source Code Control"};
inline constexpr TResString sMsgDialogOk{"&OK"};
