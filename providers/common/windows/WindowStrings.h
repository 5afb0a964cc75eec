// Texts of the windows that every provider can show.
#pragma once

#include "system/Text.h"

namespace kestrel {

// All windows
inline constexpr TResString sClose{"Close"};

// Differences
inline constexpr TResString sDiffTitle{"Differences: %s"};
inline constexpr TResString sPreviousDifference{"&Previous"};
inline constexpr TResString sNextDifference{"&Next"};
inline constexpr TResString sPreviousHint{"Go to the previous difference (Shift+F8 or Alt+Up)"};
inline constexpr TResString sNextHint{"Go to the next difference (F8 or Alt+Down)"};
inline constexpr TResString sIgnoreCase{"Ignore &case"};
inline constexpr TResString sIgnoreSpace{"Ignore white &space"};
inline constexpr TResString sNoDifferences{"There are no differences."};
inline constexpr TResString sNoneWithOptions{"There are no differences other than those ignored."};
inline constexpr TResString sOneDifference{"There is one difference."};
inline constexpr TResString sDifferences{"There are %d differences."};
inline constexpr TResString sDifferenceOf{"Difference %d of %d."};
inline constexpr TResString sOnlyEnds{"Only the line ends differ."};
inline constexpr TResString sEndsDiffer{"The line ends differ, too."};
inline constexpr TResString sLeftUnended{"The last line on the left has no line end."};
inline constexpr TResString sRightUnended{"The last line on the right has no line end."};
inline constexpr TResString sBinaryDiffer{
    "The files are not text, and they differ: %d bytes on the left, %d bytes on the right."};
inline constexpr TResString sBinarySame{"The files are not text. There are no differences."};
inline constexpr TResString sOnDisk{"On this computer"};
inline constexpr TResString sNoText{"This is no text: %d bytes."};

// History
inline constexpr TResString sHistoryTitle{"History: %s"};
inline constexpr TResString sRevisionColumn{"Revision"};
inline constexpr TResString sDateColumn{"Date"};
inline constexpr TResString sUserColumn{"User"};
inline constexpr TResString sCommentColumn{"Comment"};
inline constexpr TResString sShowTextButton{"&Show Text"};
inline constexpr TResString sComparePreviousButton{"Compare with &Previous"};
inline constexpr TResString sCompareLocalButton{"Compare with &Local"};
inline constexpr TResString sGetRevisionButton{"&Get This Revision..."};
inline constexpr TResString sMoreButton{"&More"};
inline constexpr TResString sRevisionBy{"revision %s, %s, %s"};
inline constexpr TResString sOneRevision{"One revision."};
inline constexpr TResString sRevisions{"%d revisions."};
inline constexpr TResString sMoreRevisions{"The newest %d revisions. There are more."};
inline constexpr TResString sGetRevisionTitle{"Get This Revision"};
inline constexpr TResString sReplaceFile{"Replace %s by revision %s?"};
inline constexpr TResString sReplaceEdits{
    "%s has changes that are not checked in. Replace it by revision %s? Your version will be kept in a copy "
    "beside it."};
inline constexpr TResString sReplaceButton{"&Replace"};
inline constexpr TResString sKeepButton{"&Keep Mine"};

// Properties
inline constexpr TResString sPropertiesTitle{"Properties: %s"};
inline constexpr TResString sVersionedProperties{"Versioned properties:"};
inline constexpr TResString sNoProperties{"There are no versioned properties."};
inline constexpr TResString sNameColumn{"Name"};
inline constexpr TResString sValueColumn{"Value"};

// Repository
inline constexpr TResString sRepositoryLabel{"&Repository:"};
inline constexpr TResString sOpenButton{"&Open"};
inline constexpr TResString sHistoryButton{"&History..."};
inline constexpr TResString sPropertiesButton{"&Properties..."};
inline constexpr TResString sRefreshButton{"Re&fresh"};
inline constexpr TResString sRefreshHint{"Ask the repository again (F5)"};
inline constexpr TResString sSizeColumn{"Size"};
inline constexpr TResString sLockColumn{"Checked out by"};
inline constexpr TResString sOpenARepository{"Enter the address of a repository and choose Open."};
inline constexpr TResString sEmptyFolder{"the folder is empty."};
inline constexpr TResString sOneEntry{"one entry."};
inline constexpr TResString sEntries{"%d entries."};

}  // namespace kestrel
