#pragma once

#include "system/Text.h"

namespace kestrel::addin {

inline constexpr TResString sCommentsCaption{"Comments"};
inline constexpr TResString sApplyToAll{"&Apply same comment to all"};
inline constexpr TResString sCommentsRecent{"&Recent"};
inline constexpr TResString sCommentsRecentHint{
    "Earlier comments.  In the text, Ctrl+Up and Ctrl+Down go through them."};
inline constexpr TResString sCommentLength{"%d of %d bytes"};

}  // namespace kestrel::addin
