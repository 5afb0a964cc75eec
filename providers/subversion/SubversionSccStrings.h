// Texts of the Subversion provider.
#pragma once

#include "host/Text.h"

// Identity
constexpr TResString sProviderName{"Subversion"};
constexpr TResString sAuxPathLabel{"Repository:"};

// Notices
constexpr TResString sSending{"Sending %s."};
constexpr TResString sAdding{"Adding %s."};
constexpr TResString sRemoving{"Removing %s."};
constexpr TResString sCommitted{"Committed revision %d."};
constexpr TResString sLocked{"Locked %s."};
constexpr TResString sUnlocked{"Unlocked %s."};
constexpr TResString sReverted{"Undid the changes to %s."};
constexpr TResString sRestored{"Restored %s."};
constexpr TResString sFetched{"Fetched %s."};
constexpr TResString sUpdated{"Updated %s."};
constexpr TResString sMerged{"Merged changes from the repository into %s."};
constexpr TResString sConflict{
    "Changes from the repository conflict with yours in %s: this must be settled before it is checked in."};
constexpr TResString sTreeConflict{
    "%s was changed here, and moved, deleted or replaced in the repository: it was left as it is."};
constexpr TResString sKeptExisting{"%s was here already and was kept."};
constexpr TResString sKeptBeside{"%s was here already and was kept as %s."};
constexpr TResString sUpdateDeleted{"%s was deleted in the repository and removed here."};
constexpr TResString sLockGone{"The lock on %s was taken away in the repository."};
constexpr TResString sLockTaken{"The lock on %s was taken away in the repository: %s has it now."};
constexpr TResString sResolved{"The conflict in %s is settled."};
constexpr TResString sUpToDate{"%s is up to date."};
constexpr TResString sAllUpToDate{"All files are up to date."};
constexpr TResString sNotChanged{"%s was not changed: its lock is released."};

// Failures; the first argument is the file
constexpr TResString sFileFailed{"%s: %s"};
constexpr TResString sOutsideProject{"the file is not in the project's folder"};
constexpr TResString sNotControlled{"the file is not under source control"};
constexpr TResString sFileMissing{"there is no such file on this computer"};
constexpr TResString sNotCheckedOut{"the file is not checked out here"};
constexpr TResString sAlreadyOut{"%s is checked out already."};
constexpr TResString sOutElsewhere{"you have it checked out in another folder"};
constexpr TResString sOutByOther{"someone else has it checked out"};
constexpr TResString sOutBy{"%s has it checked out"};
constexpr TResString sLockLost{"its lock was taken away in the repository: check it out again"};
constexpr TResString sOutOfDate{"the repository has a newer version: get it first"};
constexpr TResString sCopyReadOnly{"the working copy cannot be written to: it is read-only"};
constexpr TResString sBusy{"another program is at work in the working copy"};
constexpr TResString sNoRepository{"there is no repository that can be opened at this address"};
constexpr TResString sNoRepositoryAt{"there is no repository that can be opened at %s"};
constexpr TResString sNotUtf8{"its name is not UTF-8, which Subversion needs"};
constexpr TResString sNameNotUtf8{"%s is left out: its name is not UTF-8, which Subversion needs."};
constexpr TResString sStillOut{"the file is checked out: check it in or undo the check-out first"};
constexpr TResString sDeletedInRepository{"the file was deleted in the repository"};
constexpr TResString sAlreadyControlled{"the file is under source control already"};
constexpr TResString sNotAFile{"it is not a file"};
constexpr TResString sConflictMarks{
    "the file still has conflict marks: edit the marked places and check it in, or undo the check-out"};
constexpr TResString sOpenConflict{
    "it was changed here and in the repository, and the two versions could not be merged: Get Latest Version "
    "or "
    "Undo Check Out takes the repository's and keeps yours in a copy"};
constexpr TResString sLostConflict{
    "it was changed here, and moved or deleted in the repository: Add brings your version back, Get Latest "
    "Version "
    "or Undo Check Out gives it up and keeps a copy"};
constexpr TResString sGiveUpTitle{"Take the Repository's Version?"};
constexpr TResString sGiveUp{
    "These files were changed here, and in the repository they were changed, moved or deleted; the versions "
    "cannot be "
    "merged:\n\n%s\n\n"
    "Take what the repository has? What it does not have is removed here. Your versions are kept in copies "
    "beside the "
    "files."};
constexpr TResString sInTheWay{
    "a file of that name is here which never came from the repository: Get Latest Version fetches the "
    "repository's and "
    "keeps yours in a copy"};
constexpr TResString sNeverSeen{
    "the repository has a version that you do not have: get the latest version first"};
constexpr TResString sCheckedInAhead{
    "it was changed in the repository meanwhile: get the latest version, then check it in"};
constexpr TResString sLeftAsItIs{"%s is not checked out here: it was left as it is."};
constexpr TResString sAddedAlready{"%s was added already."};
constexpr TResString sAddedNotOut{"%s was added, and could not be checked out: %s"};
constexpr TResString sStatusFailed{"The repository could not be asked: %s"};

// Opening a project
constexpr TResString sNoProjectNamed{"No repository is named, and the folder is no working copy of one."};
constexpr TResString sBadUrl{"\"%s\" is neither the address of a repository nor an absolute folder name."};
constexpr TResString sBadProjectPath{"\"%s\" is not a path in a repository."};
constexpr TResString sNoLocalFolder{"The local folder \"%s\" is not an absolute path."};
constexpr TResString sUnknownProject{"The repository %s has no folder \"%s\"."};
constexpr TResString sProjectIsFile{"\"%s\" is a file in the repository %s, not a folder."};
constexpr TResString sOtherWorkingCopy{"%s is a working copy of %s already: it cannot be bound to %s."};
constexpr TResString sCouldNotCreate{"The folder \"%s\" could not be created in the repository: %s"};
constexpr TResString sProjectCreated{"Created %s."};
constexpr TResString sFinishedInterrupted{"A command that was interrupted in %s was cleaned up."};
constexpr TResString sInUse{"%s is still working on %s: try again when it is done."};
constexpr TResString sThisProvidersProgram{"Another program that has this project open"};
constexpr TResString sOthersProgram{"A program of another user"};
constexpr TResString sUnknownProgram{"Another program"};
constexpr TResString sTakeOverTitle{"Take Over Locks?"};
constexpr TResString sTakeOver{
    "A check-out in this folder was interrupted before it was done. Its locks are still in the "
    "repository:\n\n%s\n\n"
    "Take them over?"};
constexpr TResString sLeftOver{
    "a check-out that was interrupted here left its lock: check the file out again and agree to take it "
    "over"};
constexpr TResString sCreateProjectLog{"Create the project folder."};

// A repository that was not used before
constexpr TResString sConsentTitle{"Use This Repository?"};
constexpr TResString sConsentNewRepository{
    "%s names a repository that you have not used on this computer before.\n\n"
    "Repository: %s\nFolder: %s\nUser name: %s\n\n"};
constexpr TResString sConsentNewFolder{
    "%s names a folder that its repository does not have.\n\n"
    "Repository: %s\nFolder: %s\nUser name: %s\n\n"};
constexpr TResString sConsentMayCreate{"The folder is created there if it does not exist. "};
constexpr TResString sConsentWillCreate{"The folder will be created there. "};
constexpr TResString sConsentNoNote{""};
constexpr TResString sConsentQuestion{
    "A repository can run programs on this computer: use it only if you trust whoever made this project.\n\n"
    "Use it?"};
constexpr TResString sConsentRefused{
    "You chose not to use the repository %s: nothing was opened. Open the project again to be asked again."};
constexpr TResString sNotAskedSilent{
    "The repository %s has not been used on this computer before, and this way of opening asks nothing."};
constexpr TResString sNotAskedNoWindow{
    "The repository %s has not been used on this computer before, and this program cannot show the "
    "question."};

// Session
constexpr TResString sNoRuntime{"The Apache portable runtime did not start."};
constexpr TResString sUnknownFault{"The provider failed for an unknown reason."};
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
constexpr TResString sNotConnected{"Enter the address of a repository and choose Connect."};
constexpr TResString sChooseFolder{"Choose the folder that holds the project."};
constexpr TResString sWillUse{"The project will be bound to %s."};
constexpr TResString sWillCreate{"The folder %s will be created when the project is opened."};
constexpr TResString sRepositoryMade{"An empty repository was created. Choose its root, or add a folder."};
constexpr TResString sNoUser{"Enter a user name."};
constexpr TResString sTooLong{"The address is too long: %d bytes are the most."};
constexpr TResString sUserTooLong{"The user name is too long: %d bytes are the most."};
constexpr TResString sNewFolderTitle{"New Folder"};
constexpr TResString sNewFolderPrompt{"Name of the new folder in \"%s\":"};
constexpr TResString sBadFolderName{"\"%s\" cannot be the name of a folder."};
constexpr TResString sFolderExists{"There is a folder \"%s\" already."};
constexpr TResString sNewRepositoryTitle{"Choose an empty folder for the new repository"};
constexpr TResString sFolderNotEmpty{
    "The folder \"%s\" is not empty: a repository needs a folder of its own."};
