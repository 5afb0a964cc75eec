// Texts of the provider's windows.
#pragma once

#include "host/Text.h"

// ProviderContext
constexpr TResString sNoWindows{"The repository cannot be chosen: this program shows no windows."};

// Choosing a project
constexpr TResString sDialogTitle{"Choose a Subversion Project"};
constexpr TResString sLocalFolderLabel{"Local folder:"};
constexpr TResString sUserLabel{"&User:"};
constexpr TResString sRepositoryLabel{"&Repository:"};
constexpr TResString sConnectButton{"&Connect"};
constexpr TResString sNewRepositoryButton{"&New Local Repository..."};
constexpr TResString sFolderLabel{"&Folder in the repository that holds the project:"};
constexpr TResString sNewFolderButton{"New F&older..."};
constexpr TResString sRepositoryHint{"Address of a repository, or an absolute folder name"};
constexpr TResString sNewFolderTitle{"New Folder"};
constexpr TResString sNewFolderPrompt{"Name of the new folder in \"%s\":"};
constexpr TResString sNewRepositoryTitle{"Choose an empty folder for the new repository"};

// All windows
constexpr TResString sWindowsTitle{"Subversion"};
constexpr TResString sShowsNoWindows{"The provider's window cannot be shown: this program shows no windows."};

// Differences
constexpr TResString sInRepository{"In the repository, revision %d"};
constexpr TResString sLastFetched{"As last fetched, revision %d (the repository could not be asked)"};
constexpr TResString sGoneFromRepository{"As last fetched, revision %d (deleted in the repository)"};
constexpr TResString sOnDisk{"On this computer"};

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

// Properties
constexpr TResString sPropertiesTitle{"Properties: %s"};
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
