// Texts of the windows that every provider can show.
#pragma once

#include "host/Text.h"

// All windows
constexpr TResString sClose{"Close"};

// Differences
constexpr TResString sDiffTitle{"Differences: %s"};
constexpr TResString sPreviousDifference{"&Previous"};
constexpr TResString sNextDifference{"&Next"};
constexpr TResString sPreviousHint{"Go to the previous difference (Shift+F8 or Alt+Up)"};
constexpr TResString sNextHint{"Go to the next difference (F8 or Alt+Down)"};
constexpr TResString sIgnoreCase{"Ignore &case"};
constexpr TResString sIgnoreSpace{"Ignore white &space"};
constexpr TResString sNoDifferences{"There are no differences."};
constexpr TResString sNoneWithOptions{"There are no differences other than those ignored."};
constexpr TResString sOneDifference{"There is one difference."};
constexpr TResString sDifferences{"There are %d differences."};
constexpr TResString sDifferenceOf{"Difference %d of %d."};
constexpr TResString sOnlyEnds{"Only the line ends differ."};
constexpr TResString sEndsDiffer{"The line ends differ, too."};
constexpr TResString sLeftUnended{"The last line on the left has no line end."};
constexpr TResString sRightUnended{"The last line on the right has no line end."};
constexpr TResString sBinaryDiffer{
    "The files are not text, and they differ: %d bytes on the left, %d bytes on the right."};
constexpr TResString sBinarySame{"The files are not text. There are no differences."};
constexpr TResString sOnDisk{"On this computer"};
constexpr TResString sNoText{"This is no text: %d bytes."};

// History
constexpr TResString sHistoryTitle{"History: %s"};
constexpr TResString sRevisionColumn{"Revision"};
constexpr TResString sDateColumn{"Date"};
constexpr TResString sUserColumn{"User"};
constexpr TResString sCommentColumn{"Comment"};
constexpr TResString sShowTextButton{"&Show Text"};
constexpr TResString sComparePreviousButton{"Compare with &Previous"};
constexpr TResString sCompareLocalButton{"Compare with &Local"};
constexpr TResString sGetRevisionButton{"&Get This Revision..."};
constexpr TResString sMoreButton{"&More"};
constexpr TResString sRevisionBy{"revision %s, %s, %s"};
constexpr TResString sOneRevision{"One revision."};
constexpr TResString sRevisions{"%d revisions."};
constexpr TResString sMoreRevisions{"The newest %d revisions. There are more."};
constexpr TResString sGetRevisionTitle{"Get This Revision"};
constexpr TResString sReplaceFile{"Replace %s by revision %s?"};
constexpr TResString sReplaceEdits{
    "%s has changes that are not checked in. Replace it by revision %s? Your version will be kept in a copy "
    "beside it."};
constexpr TResString sReplaceButton{"&Replace"};
constexpr TResString sKeepButton{"&Keep Mine"};

// Properties
constexpr TResString sPropertiesTitle{"Properties: %s"};
constexpr TResString sVersionedProperties{"Versioned properties:"};
constexpr TResString sNoProperties{"There are no versioned properties."};
constexpr TResString sNameColumn{"Name"};
constexpr TResString sValueColumn{"Value"};

// Repository
constexpr TResString sRepositoryLabel{"&Repository:"};
constexpr TResString sOpenButton{"&Open"};
constexpr TResString sHistoryButton{"&History..."};
constexpr TResString sPropertiesButton{"&Properties..."};
constexpr TResString sRefreshButton{"Re&fresh"};
constexpr TResString sRefreshHint{"Ask the repository again (F5)"};
constexpr TResString sSizeColumn{"Size"};
constexpr TResString sLockColumn{"Checked out by"};
constexpr TResString sOpenARepository{"Enter the address of a repository and choose Open."};
constexpr TResString sEmptyFolder{"the folder is empty."};
constexpr TResString sOneEntry{"one entry."};
constexpr TResString sEntries{"%d entries."};
