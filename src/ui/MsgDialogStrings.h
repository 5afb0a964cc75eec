#pragma once

#include "system/Text.h"

namespace kestrel::addin {

inline constexpr TResString sMsgDialogCaption{"Source Code Control"};

}  // namespace kestrel::addin
