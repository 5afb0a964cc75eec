// Texts of the commit browser's summary.
#pragma once

#include "system/Text.h"

namespace kestrel::addin {

inline constexpr TResString sProcessingFiles{"Processing Project Files"};
inline constexpr TResString sCRLF{"\r\n"};
inline constexpr TResString sNoAction{" + No Action "};
inline constexpr TResString sCommiting{" + Commiting "};
inline constexpr TResString sCheckingOut{" + Checking out "};
inline constexpr TResString sUndoingCheckOut{" + Undoing checkout on "};
inline constexpr TResString sAdding{" + Adding "};
inline constexpr TResString sRemoving{" + Removing "};
inline constexpr TResString sGettingLatest{" + Getting Latest "};
inline constexpr TResString sOutcomeFollows{": "};
inline constexpr TResString sSucceeded{"Succeeded"};
inline constexpr TResString sFailed{"Failed"};
inline constexpr TResString sCommitSummaryTitle{"Commit Borwser"};
inline constexpr TResString sReloadError{"ReloadFiles; %s"};

}  // namespace kestrel::addin
