// Texts of the Subversion provider.
#pragma once

#include "host/Text.h"

// Identity
inline constexpr TResString sProviderName{"Subversion"};
inline constexpr TResString sAuxPathLabel{"Repository:"};

// Notices
inline constexpr TResString sSending{"Sending %s."};
inline constexpr TResString sAdding{"Adding %s."};
inline constexpr TResString sRemoving{"Removing %s."};
inline constexpr TResString sCommitted{"Committed revision %d."};
inline constexpr TResString sLocked{"Locked %s."};
inline constexpr TResString sUnlocked{"Unlocked %s."};
inline constexpr TResString sReverted{"Undid the changes to %s."};
inline constexpr TResString sRestored{"Restored %s."};
inline constexpr TResString sFetched{"Fetched %s."};
inline constexpr TResString sUpdated{"Updated %s."};
inline constexpr TResString sMerged{"Merged changes from the repository into %s."};
inline constexpr TResString sConflict{
    "Changes from the repository conflict with yours in %s: edit the marked places, then check it in."};
inline constexpr TResString sTreeConflict{
    "%s was changed here, and moved or deleted in the repository: it was left as it is."};
inline constexpr TResString sKeptExisting{"%s was here already and was kept."};
inline constexpr TResString sUpdateDeleted{"%s was deleted in the repository and removed here."};
inline constexpr TResString sLockGone{"The lock on %s was taken away in the repository."};
inline constexpr TResString sResolved{"The conflict in %s is settled."};
inline constexpr TResString sUpToDate{"%s is up to date."};
inline constexpr TResString sNotChanged{"%s was not changed: its lock is released."};

// Failures; the first argument is the file
inline constexpr TResString sFileFailed{"%s: %s"};
inline constexpr TResString sOutsideProject{"the file is not in the project's folder"};
inline constexpr TResString sNotControlled{"the file is not under source control"};
inline constexpr TResString sFileMissing{"there is no such file on this computer"};
inline constexpr TResString sNotCheckedOut{"the file is not checked out here"};
inline constexpr TResString sAlreadyOut{"you have it checked out already"};
inline constexpr TResString sOutElsewhere{"you have it checked out in another folder"};
inline constexpr TResString sOutByOther{"someone else has it checked out"};
inline constexpr TResString sStillOut{"the file is checked out: check it in or undo the check-out first"};
inline constexpr TResString sDeletedInRepository{"the file was deleted in the repository"};
inline constexpr TResString sAlreadyControlled{"the file is under source control already"};
inline constexpr TResString sNotAFile{"it is not a file"};
inline constexpr TResString sConflictMarks{"the file still has conflict marks: edit the marked places first"};
inline constexpr TResString sStatusFailed{"The repository could not be asked: %s"};

// Opening a project
inline constexpr TResString sNoProjectNamed{
    "No repository is named, and the folder is no working copy of one."};
inline constexpr TResString sBadUrl{
    "\"%s\" is neither the address of a repository nor an absolute folder name."};
inline constexpr TResString sBadProjectPath{"\"%s\" is not a path in a repository."};
inline constexpr TResString sNoLocalFolder{"The local folder \"%s\" is not an absolute path."};
inline constexpr TResString sUnknownProject{"The repository %s has no folder \"%s\"."};
inline constexpr TResString sProjectIsFile{"\"%s\" is a file in the repository %s, not a folder."};
inline constexpr TResString sOtherWorkingCopy{
    "%s is a working copy of %s already: it cannot be bound to %s."};
inline constexpr TResString sCouldNotCreate{"The folder \"%s\" could not be created in the repository: %s"};
inline constexpr TResString sProjectCreated{"Created %s."};
inline constexpr TResString sProjectOpened{"Opened %s."};
inline constexpr TResString sCreateProjectLog{"Create the project folder."};

// Session
inline constexpr TResString sNoRuntime{"The Apache portable runtime did not start."};
inline constexpr TResString sUnknownFault{"The provider failed for an unknown reason."};
inline constexpr TResString sNoWindows{"The repository cannot be chosen: this program shows no windows."};

// Choosing a project
inline constexpr TResString sDialogTitle{"Choose a Subversion Project"};
inline constexpr TResString sLocalFolderLabel{"Local folder:"};
inline constexpr TResString sUserLabel{"&User:"};
inline constexpr TResString sRepositoryLabel{"&Repository:"};
inline constexpr TResString sConnectButton{"&Connect"};
inline constexpr TResString sNewRepositoryButton{"&New Local Repository..."};
inline constexpr TResString sFolderLabel{"&Folder in the repository that holds the project:"};
inline constexpr TResString sNewFolderButton{"New F&older..."};
inline constexpr TResString sRepositoryHint{"Address of a repository, or an absolute folder name"};
inline constexpr TResString sNotConnected{"Enter the address of a repository and choose Connect."};
inline constexpr TResString sChooseFolder{"Choose the folder that holds the project."};
inline constexpr TResString sWillUse{"The project will be bound to %s."};
inline constexpr TResString sWillCreate{"The folder %s will be created when the project is opened."};
inline constexpr TResString sRepositoryMade{
    "An empty repository was created. Choose its root, or add a folder."};
inline constexpr TResString sNoUser{"Enter a user name."};
inline constexpr TResString sTooLong{"The address is too long: %d bytes are the most."};
inline constexpr TResString sUserTooLong{"The user name is too long: %d bytes are the most."};
inline constexpr TResString sNewFolderTitle{"New Folder"};
inline constexpr TResString sNewFolderPrompt{"Name of the new folder in \"%s\":"};
inline constexpr TResString sBadFolderName{"\"%s\" cannot be the name of a folder."};
inline constexpr TResString sFolderExists{"There is a folder \"%s\" already."};
inline constexpr TResString sNewRepositoryTitle{"Choose an empty folder for the new repository"};
inline constexpr TResString sFolderNotEmpty{
    "The folder \"%s\" is not empty: a repository needs a folder of its own."};
