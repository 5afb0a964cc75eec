// Texts of the commit browser's rows.
#pragma once

#include "system/Text.h"

namespace kestrel::addin {

inline constexpr TResString sNoActivity{"No activity"};
inline constexpr TResString sActivityCommit{"Commit"};
inline constexpr TResString sActivityCheckOut{"Check Out"};
inline constexpr TResString sActivityUndo{"Undo Check Out"};
inline constexpr TResString sActivityAdd{"Add"};
inline constexpr TResString sActivityRemove{"Remove"};
inline constexpr TResString sActivityGetLatest{"Get Latest"};
inline constexpr TResString sActivityError{"Activity Error"};

inline constexpr TResString sInvalidStatus{"Invalid status returned!"};
inline constexpr TResString sNotControlled{"Not Controlled"};
inline constexpr TResString sCheckedOutModified{"Checked out/Modified"};
inline constexpr TResString sCheckedOutUpToDate{"Checked out/Up to date"};
inline constexpr TResString sOutOtherModified{"Checked out by another user/Modified"};
inline constexpr TResString sOutOtherUpToDate{"Checked out by another user/Up To date"};
inline constexpr TResString sModified{"Modified"};
inline constexpr TResString sUpToDate{"Up to date"};

inline constexpr TResString sCommitBrowserCaption{"Commit Browser"};
inline constexpr TResString sCommitNoProvider{"Unable to run Commit Browser, provider not assigned"};

}  // namespace kestrel::addin
