// Texts of the provider's windows.
#pragma once

#include "host/Text.h"

// Choosing a project
constexpr TResString sDialogTitle{"Choose a Subversion Project"};
constexpr TResString sLocalFolderLabel{"Local folder:"};
constexpr TResString sUserLabel{"&User:"};
constexpr TResString sConnectButton{"&Connect"};
constexpr TResString sNewRepositoryButton{"&New Local Repository..."};
constexpr TResString sFolderLabel{"&Folder in the repository that holds the project:"};
constexpr TResString sNewFolderButton{"New F&older..."};
constexpr TResString sRepositoryHint{"Address of a repository, or an absolute folder name"};
constexpr TResString sNewFolderTitle{"New Folder"};
constexpr TResString sNewFolderPrompt{"Name of the new folder in \"%s\":"};
constexpr TResString sNewRepositoryTitle{"Choose an empty folder for the new repository"};

// All windows
constexpr TResString sNoWindows{"The repository cannot be chosen: this program shows no windows."};
constexpr TResString sWindowsTitle{"Subversion"};
constexpr TResString sShowsNoWindows{"The provider's window cannot be shown: this program shows no windows."};

// Differences
constexpr TResString sInRepository{"In the repository, revision %d"};
constexpr TResString sLastFetched{"As last fetched, revision %d (the repository could not be asked)"};
constexpr TResString sGoneFromRepository{"As last fetched, revision %d (deleted in the repository)"};

// History
constexpr TResString sNoFileNamed{"No file is named."};

// Browser
constexpr TResString sBrowserTitle{"Subversion Repository"};

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
