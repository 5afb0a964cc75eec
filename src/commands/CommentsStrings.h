#pragma once

#include "host/Text.h"

inline constexpr TResString sCommentsCaption{"Comments"};
inline constexpr TResString sApplyToAll{"&Apply same comment to all"};
inline constexpr TResString sCommentsOk{"&OK"};
inline constexpr TResString sCommentsCancel{"&Cancel"};
inline constexpr TResString sCommentLength{"%d of %d bytes"};
