// Texts of the commit browser's window.
#pragma once

#include "host/Text.h"

constexpr TResString sCommitHint{
    "The Commit button commits all changes. To disregard a file, choose \"No activity\" in its first "
    "column."};
constexpr TResString sActionColumn{"Action"};
constexpr TResString sStateColumn{"State"};
constexpr TResString sFileNameColumn{"File Name"};

constexpr TResString sCommitsPage{"C&ommits"};
constexpr TResString sSummaryCommentPage{"&Summary Comment"};
constexpr TResString sIndividualCommentPage{"&Individual Comment"};
constexpr TResString sLocalSourcePage{"&Local Source"};
constexpr TResString sDiffAndHistoryPage{"&Diff. And History"};

constexpr TResString sTrimFilePath{"&Trim File Path"};
constexpr TResString sUseIndividualComment{"&Use individual comment"};
constexpr TResString sUseSummaryComment{"&Use Summary comment"};
constexpr TResString sShowDifference{"Show Di&fference..."};
constexpr TResString sShowHistoryButton{"Show Histor&y..."};
constexpr TResString sCommitHelp{"&Help"};
constexpr TResString sCommitCancel{"C&ancel"};
constexpr TResString sCommitButton{"&Commit"};

constexpr TResString sFileNotLocal{"File does not exist in local path"};
constexpr TResString sFileSize{"%s: %d bytes"};
constexpr TResString sFilePartShown{"%s: %d bytes, of which the first %d are shown"};
constexpr TResString sCommitProgress{"File %d of %d: %s"};
