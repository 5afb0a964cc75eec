// Texts of the provider's windows.
#pragma once

#include "system/Text.h"

namespace kestrel::svnscc {

// Choosing a project
inline constexpr TResString sDialogTitle{"Choose a Subversion Project"};
inline constexpr TResString sLocalFolderLabel{"Local folder:"};
inline constexpr TResString sUserLabel{"&User:"};
inline constexpr TResString sConnectButton{"&Connect"};
inline constexpr TResString sNewRepositoryButton{"&New Local Repository..."};
inline constexpr TResString sFolderLabel{"&Folder in the repository that holds the project:"};
inline constexpr TResString sNewFolderButton{"New F&older..."};
inline constexpr TResString sRepositoryHint{"Address of a repository, or an absolute folder name"};
inline constexpr TResString sNewFolderTitle{"New Folder"};
inline constexpr TResString sNewFolderPrompt{"Name of the new folder in \"%s\":"};
inline constexpr TResString sNewRepositoryTitle{"Choose an empty folder for the new repository"};

// All windows
inline constexpr TResString sNoWindows{"The repository cannot be chosen: this program shows no windows."};
inline constexpr TResString sWindowsTitle{"Subversion"};
inline constexpr TResString sShowsNoWindows{
    "The provider's window cannot be shown: this program shows no windows."};

// Differences
inline constexpr TResString sInRepository{"In the repository, revision %d"};
inline constexpr TResString sLastFetched{"As last fetched, revision %d (the repository could not be asked)"};
inline constexpr TResString sGoneFromRepository{"As last fetched, revision %d (deleted in the repository)"};

// History
inline constexpr TResString sNoFileNamed{"No file is named."};

// Browser
inline constexpr TResString sBrowserTitle{"Subversion Repository"};

// Options of commands
inline constexpr TResString sOptionsTitle{"Advanced Options"};
inline constexpr TResString sOptionsOnce{
    "This applies to the files of this list only. It is forgotten when the command has run or was "
    "cancelled."};
inline constexpr TResString sNewestRevision{"Get the &newest revision"};
inline constexpr TResString sGivenRevision{"Get &revision"};
inline constexpr TResString sStealLocks{"&Steal the lock if another user has it"};
inline constexpr TResString sKeepUnchangedOut{"&Keep files without changes checked out"};
inline constexpr TResString sWithoutNeedsLock{
    "&Let the files be changed without checking them out (do not set svn:needs-lock)"};

// Logging in
inline constexpr TResString sLoginTitle{"Subversion Login"};
inline constexpr TResString sLoginAsked{"The server asks for a login to %s."};
inline constexpr TResString sLoginRefused{"The server did not accept that login to %s. Try again."};
inline constexpr TResString sLoginUser{"&User name:"};
inline constexpr TResString sLoginPassword{"&Password:"};
inline constexpr TResString sLoginKept{"It is kept until this program ends, and not stored."};

// Adding from the repository
inline constexpr TResString sAddFromTitle{"Add from Repository"};
inline constexpr TResString sAddFromPrompt{"Choose the files of the repository to get to this computer:"};
inline constexpr TResString sNothingToAdd{
    "Every file that the repository has of this project is on this computer."};
inline constexpr TResString sFileColumn{"File"};
inline constexpr TResString sSelectAll{"Select &All"};
inline constexpr TResString sSelectNone{"Select &None"};
inline constexpr TResString sAddFromButton{"&Get"};

}  // namespace kestrel::svnscc
