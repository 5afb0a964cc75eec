#pragma once

#include "host/Text.h"

constexpr TResString sCommentsCaption{"Comments"};
constexpr TResString sApplyToAll{"&Apply same comment to all"};
constexpr TResString sCommentsRecent{"&Recent"};
constexpr TResString sCommentsRecentHint{
    "Earlier comments.  In the text, Ctrl+Up and Ctrl+Down go through them."};
constexpr TResString sCommentLength{"%d of %d bytes"};
