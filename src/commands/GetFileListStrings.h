#pragma once

#include "system/Text.h"

namespace kestrel::addin {

inline constexpr TResString sGetFileListCaption{"Get File List"};
inline constexpr TResString sFilesLabel{"Files"};
inline constexpr TResString sNameColumn{"Name"};
inline constexpr TResString sStatusColumn{"Status"};
inline constexpr TResString sPathColumn{"Path"};
inline constexpr TResString sKeepCheckedOut{"&Keep checked out"};
inline constexpr TResString sCheckOutAfterAdd{"Ch&eckout files after add"};
inline constexpr TResString sCheckAll{"C&heck All"};
inline constexpr TResString sUncheckAll{"U&ncheck All"};
inline constexpr TResString sAdvanced{"&Advanced..."};

}  // namespace kestrel::addin
