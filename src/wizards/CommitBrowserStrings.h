// Texts of the commit browser's window.
#pragma once

#include "system/Text.h"

namespace kestrel::addin {

inline constexpr TResString sCommitHint{
    "The Commit button commits all changes. To disregard a file, choose \"No activity\" in its first "
    "column."};
inline constexpr TResString sActionColumn{"Action"};
inline constexpr TResString sStateColumn{"State"};
inline constexpr TResString sFileNameColumn{"File Name"};

inline constexpr TResString sCommitsPage{"C&ommits"};
inline constexpr TResString sSummaryCommentPage{"&Summary Comment"};
inline constexpr TResString sIndividualCommentPage{"&Individual Comment"};
inline constexpr TResString sLocalSourcePage{"&Local Source"};
inline constexpr TResString sDiffAndHistoryPage{"&Diff. And History"};

inline constexpr TResString sTrimFilePath{"&Trim File Path"};
inline constexpr TResString sUseIndividualComment{"&Use individual comment"};
inline constexpr TResString sUseSummaryComment{"&Use Summary comment"};
inline constexpr TResString sShowDifference{"Show Di&fference..."};
inline constexpr TResString sShowHistoryButton{"Show Histor&y..."};
inline constexpr TResString sCommitHelp{"&Help"};
inline constexpr TResString sCommitCancel{"C&ancel"};
inline constexpr TResString sCommitButton{"&Commit"};

inline constexpr TResString sFileNotLocal{"File does not exist in local path"};
inline constexpr TResString sFileSize{"%s: %d bytes"};
inline constexpr TResString sFilePartShown{"%s: %d bytes, of which the first %d are shown"};
inline constexpr TResString sCommitProgress{"File %d of %d: %s"};

}  // namespace kestrel::addin
