// Texts of the provider's windows.
#pragma once

#include "host/Text.h"

// All windows
constexpr TResString sWindowsTitle{"Subversion"};
constexpr TResString sShowsNoWindows{"The provider's window cannot be shown: this program shows no windows."};
constexpr TResString sClose{"Close"};

// Differences
constexpr TResString sDiffTitle{"Differences: %s"};
constexpr TResString sInRepository{"In the repository, revision %d"};
constexpr TResString sLastFetched{"As last fetched, revision %d (the repository could not be asked)"};
constexpr TResString sGoneFromRepository{"As last fetched, revision %d (deleted in the repository)"};
constexpr TResString sOnDisk{"On this computer"};
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
// History
constexpr TResString sHistoryTitle{"History: %s"};
constexpr TResString sNoFileNamed{"No file is named."};
constexpr TResString sRevisionColumn{"Revision"};
constexpr TResString sDateColumn{"Date"};
constexpr TResString sUserColumn{"User"};
constexpr TResString sCommentColumn{"Comment"};
constexpr TResString sShowTextButton{"&Show Text"};
constexpr TResString sComparePreviousButton{"Compare with &Previous"};
constexpr TResString sCompareLocalButton{"Compare with &Local"};
constexpr TResString sGetRevisionButton{"&Get This Revision..."};
constexpr TResString sMoreButton{"&More"};
constexpr TResString sRevisionBy{"revision %d, %s, %s"};
constexpr TResString sOneRevision{"One revision."};
constexpr TResString sRevisions{"%d revisions."};
constexpr TResString sMoreRevisions{"The newest %d revisions. There are more."};
constexpr TResString sGetRevisionTitle{"Get This Revision"};
constexpr TResString sReplaceFile{"Replace %s by revision %d?"};
constexpr TResString sReplaceEdits{
    "%s has changes that are not checked in. Replace it by revision %d? Your version will be kept in a copy "
    "beside it."};
constexpr TResString sReplaceButton{"&Replace"};
constexpr TResString sKeepButton{"&Keep Mine"};
constexpr TResString sEditsKept{"The changes to %s were kept in %s."};
constexpr TResString sGotRevision{"Fetched revision %d of %s."};
constexpr TResString sOtherNameThen{
    "In revision %d the file was %s: check it out first to get that text into it."};
constexpr TResString sNoText{"This is no text: %d bytes."};
// Properties
constexpr TResString sPropertiesTitle{"Properties: %s"};
constexpr TResString sFactKind{"Kind:"};
constexpr TResString sFactAddress{"Address:"};
constexpr TResString sFactPath{"In the repository:"};
constexpr TResString sFactLocal{"On this computer:"};
constexpr TResString sFactState{"State:"};
constexpr TResString sFactRevision{"Revision here:"};
constexpr TResString sFactChanged{"Last changed in revision:"};
constexpr TResString sFactChangedBy{"Changed by:"};
constexpr TResString sFactChangedAt{"Changed on:"};
constexpr TResString sFactLockOwner{"Checked out by:"};
constexpr TResString sFactLockSince{"Checked out since:"};
constexpr TResString sFactLockComment{"Check-out comment:"};
constexpr TResString sKindFolder{"Folder"};
constexpr TResString sKindFile{"File"};
constexpr TResString sNotLocked{"nobody"};
constexpr TResString sStateSame{"up to date, not changed"};
constexpr TResString sStateMissing{"not on this computer"};
constexpr TResString sStateOutHere{"checked out here"};
constexpr TResString sStateOutOther{"checked out by someone else"};
constexpr TResString sStateElsewhere{"checked out by you in another folder"};
constexpr TResString sStateChanged{"changed here"};
constexpr TResString sStateConflict{"in conflict"};
constexpr TResString sStateOld{"newer in the repository"};
constexpr TResString sStateDeleted{"deleted in the repository"};
constexpr TResString sVersionedProperties{"Versioned properties:"};
constexpr TResString sNoProperties{"There are no versioned properties."};
constexpr TResString sNameColumn{"Name"};
constexpr TResString sValueColumn{"Value"};

// Browser
constexpr TResString sBrowserTitle{"Subversion Repository"};
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
// Options of commands
constexpr TResString sOptionsTitle{"Advanced Options"};
constexpr TResString sOptionsOnce{
    "This applies to the files of this list only. It is forgotten when the command has run or was "
    "cancelled."};
constexpr TResString sNewestRevision{"Get the &newest revision"};
constexpr TResString sGivenRevision{"Get &revision"};
constexpr TResString sStealLocks{"&Steal the lock if another user has it"};
constexpr TResString sKeepUnchangedOut{"&Keep files without changes checked out"};
constexpr TResString sWithoutNeedsLock{
    "&Let the files be changed without checking them out (do not set svn:needs-lock)"};
// Logging in
constexpr TResString sLoginTitle{"Subversion Login"};
constexpr TResString sLoginAsked{"The server asks for a login to %s."};
constexpr TResString sLoginRefused{"The server did not accept that login to %s. Try again."};
constexpr TResString sLoginUser{"&User name:"};
constexpr TResString sLoginPassword{"&Password:"};
constexpr TResString sLoginKept{"It is kept until this program ends, and not stored."};
// Adding from the repository
constexpr TResString sAddFromTitle{"Add from Repository"};
constexpr TResString sAddFromPrompt{"Choose the files of the repository to get to this computer:"};
constexpr TResString sNothingToAdd{"Every file that the repository has of this project is on this computer."};
constexpr TResString sFileColumn{"File"};
constexpr TResString sSelectAll{"Select &All"};
constexpr TResString sSelectNone{"Select &None"};
constexpr TResString sAddFromButton{"&Get"};
constexpr TResString sNotAsked{"The files in the repository are not known."};

// Renaming, cancelling
constexpr TResString sGetBeforeRename{
    "the file is not the newest, or in conflict: get it and check it in first"};
constexpr TResString sRenameLog{"Rename %s to %s."};
constexpr TResString sCancelled{"The command was cancelled."};
