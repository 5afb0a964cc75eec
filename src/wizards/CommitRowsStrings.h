// Texts of the commit browser's rows.
#pragma once

#include "host/Text.h"

constexpr TResString sNoActivity{"No activity"};
constexpr TResString sActivityCommit{"Commit"};
constexpr TResString sActivityCheckOut{"Check Out"};
constexpr TResString sActivityUndo{"Undo Check Out"};
constexpr TResString sActivityAdd{"Add"};
constexpr TResString sActivityRemove{"Remove"};
constexpr TResString sActivityGetLatest{"Get Latest"};
constexpr TResString sActivityError{"Activity Error"};

constexpr TResString sInvalidStatus{"Invalid status returned!"};
constexpr TResString sNotControlled{"Not Controlled"};
constexpr TResString sCheckedOutModified{"Checked out/Modified"};
constexpr TResString sCheckedOutUpToDate{"Checked out/Up to date"};
constexpr TResString sOutOtherModified{"Checked out by another user/Modified"};
constexpr TResString sOutOtherUpToDate{"Checked out by another user/Up To date"};
constexpr TResString sModified{"Modified"};
constexpr TResString sUpToDate{"Up to date"};

constexpr TResString sCommitBrowserCaption{"Commit Browser"};
constexpr TResString sCommitNoProvider{"Unable to run Commit Browser, provider not assigned"};
