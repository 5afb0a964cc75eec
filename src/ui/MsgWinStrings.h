#pragma once

#include "system/Text.h"

namespace kestrel::addin {

inline constexpr TResString sMsgWinCaption{"Version Control Messages"};
inline constexpr TResString sMessageColumn{"Message"};
inline constexpr TResString sDateColumn{"Date"};
inline constexpr TResString sClearMessages{"Clear Messages"};

}  // namespace kestrel::addin
