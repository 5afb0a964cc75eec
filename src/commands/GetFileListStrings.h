#pragma once

#include "host/Text.h"

constexpr TResString sGetFileListCaption{"Get File List"};
constexpr TResString sFilesLabel{"Files"};
constexpr TResString sNameColumn{"Name"};
constexpr TResString sStatusColumn{"Status"};
constexpr TResString sPathColumn{"Path"};
constexpr TResString sKeepCheckedOut{"&Keep checked out"};
constexpr TResString sCheckOutAfterAdd{"Ch&eckout files after add"};
constexpr TResString sCheckAll{"C&heck All"};
constexpr TResString sUncheckAll{"U&ncheck All"};
constexpr TResString sAdvanced{"&Advanced..."};
