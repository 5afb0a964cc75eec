// What a file's status means, in words.
#pragma once

#include "system/Text.h"

namespace kestrel::addin {

inline constexpr TResString sHintNotControlled{"Not under source control"};
inline constexpr TResString sHintControlled{"Under source control"};
inline constexpr TResString sHintOutToMe{"Checked out by you"};
inline constexpr TResString sHintChanged{"Changed"};
inline constexpr TResString sHintOutOfDate{"A newer version is in the repository"};
inline constexpr TResString sHintDeleted{"Deleted in the repository"};
inline constexpr TResString sHintOutElsewhere{"Checked out by you in another place"};
inline constexpr TResString sHintOutToOther{"Checked out by another user"};
inline constexpr TResString sHintInConflict{"In conflict"};

}  // namespace kestrel::addin
