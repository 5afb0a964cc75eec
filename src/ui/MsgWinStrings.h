#pragma once

#include "host/Text.h"

constexpr TResString sMsgWinCaption{"Version Control Messages"};
constexpr TResString sMessageColumn{"Message"};
constexpr TResString sDateColumn{"Date"};
constexpr TResString sClearMessages{"Clear Messages"};
