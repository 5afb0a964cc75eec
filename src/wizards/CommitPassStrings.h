// Texts of the commit browser's summary.
#pragma once

#include "host/Text.h"

constexpr TResString sProcessingFiles{"Processing Project Files"};
constexpr TResString sCRLF{"\r\n"};
constexpr TResString sNoAction{" + No Action "};
constexpr TResString sCommiting{" + Commiting "};
constexpr TResString sCheckingOut{" + Checking out "};
constexpr TResString sUndoingCheckOut{" + Undoing checkout on "};
constexpr TResString sAdding{" + Adding "};
constexpr TResString sRemoving{" + Removing "};
constexpr TResString sGettingLatest{" + Getting Latest "};
constexpr TResString sOutcomeFollows{": "};
constexpr TResString sSucceeded{"Succeeded"};
constexpr TResString sFailed{"Failed"};
constexpr TResString sCommitSummaryTitle{"Commit Borwser"};
constexpr TResString sReloadError{"ReloadFiles; %s"};
