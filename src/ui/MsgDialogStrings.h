#pragma once

#include "host/Text.h"

constexpr TResString sMsgDialogCaption{"Source Code Control"};
