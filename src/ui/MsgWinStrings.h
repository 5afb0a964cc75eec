#pragma once

#include "host/Text.h"

inline constexpr TResString sMsgWinCaption{"Version Control Messages"};
inline constexpr TResString sMessageColumn{"Message"};
inline constexpr TResString sDateColumn{"Date"};
inline constexpr TResString sClearMessages{"Clear Messages"};
