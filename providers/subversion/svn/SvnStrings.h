// Texts about the repository, the working copy and their files.
#pragma once

#include "system/Text.h"

namespace kestrel::svnscc {

// Notices
inline constexpr TResString sSending{"Sending %s."};
inline constexpr TResString sAdding{"Adding %s."};
inline constexpr TResString sRemoving{"Removing %s."};
inline constexpr TResString sLocked{"Locked %s."};
inline constexpr TResString sUnlocked{"Unlocked %s."};
inline constexpr TResString sReverted{"Undid the changes to %s."};
inline constexpr TResString sRestored{"Restored %s."};
inline constexpr TResString sFetched{"Fetched %s."};
inline constexpr TResString sUpdated{"Updated %s."};
inline constexpr TResString sMerged{"Merged changes from the repository into %s."};
inline constexpr TResString sConflict{
    "Changes from the repository conflict with yours in %s: this must be settled before it is checked in."};
inline constexpr TResString sTreeConflict{
    "%s was changed here, and moved, deleted or replaced in the repository: it was left as it is."};
inline constexpr TResString sKeptExisting{"%s was here already and was kept."};
inline constexpr TResString sUpdateDeleted{"%s was deleted in the repository and removed here."};
inline constexpr TResString sLockGone{"The lock on %s was taken away in the repository."};
inline constexpr TResString sLockTaken{"The lock on %s was taken away in the repository: %s has it now."};
inline constexpr TResString sResolved{"The conflict in %s is settled."};

// Failures; the first argument is the file
inline constexpr TResString sFileFailed{"%s: %s"};
inline constexpr TResString sOutsideProject{"the file is not in the project's folder"};
inline constexpr TResString sNotControlled{"the file is not under source control"};
inline constexpr TResString sOutElsewhere{"you have it checked out in another folder"};
inline constexpr TResString sOutByOther{"someone else has it checked out"};
inline constexpr TResString sOutBy{"%s has it checked out"};
inline constexpr TResString sLockLost{"its lock was taken away in the repository: check it out again"};
inline constexpr TResString sOutOfDate{"the repository has a newer version: get it first"};
inline constexpr TResString sCopyReadOnly{"the working copy cannot be written to: it is read-only"};
inline constexpr TResString sBusy{"another program is at work in the working copy"};
inline constexpr TResString sNoRepository{"there is no repository that can be opened at this address"};
inline constexpr TResString sNoRepositoryAt{"there is no repository that can be opened at %s"};
inline constexpr TResString sNoConnection{"no connection to the server came about within %d s"};
inline constexpr TResString sServerSilent{
    "the server has sent nothing for %d s: the connection was given up"};
inline constexpr TResString sNotUtf8{"its name is not UTF-8, which Subversion needs"};
inline constexpr TResString sNameNotUtf8{"%s is left out: its name is not UTF-8, which Subversion needs."};
inline constexpr TResString sStatusFailed{"The repository could not be asked: %s"};

// Opening a project
inline constexpr TResString sBadUrl{
    "\"%s\" is neither the address of a repository nor an absolute folder name."};
inline constexpr TResString sFinishedInterrupted{"A command that was interrupted in %s was cleaned up."};
inline constexpr TResString sInUse{"%s is still working on %s: try again when it is done."};
inline constexpr TResString sThisProvidersProgram{"Another program that has this project open"};
inline constexpr TResString sOthersProgram{"A program of another user"};
inline constexpr TResString sUnknownProgram{"Another program"};

// ProviderContext
inline constexpr TResString sNoRuntime{"The Apache portable runtime did not start."};

// History
inline constexpr TResString sOtherNameThen{
    "In revision %d the file was %s: check it out first to get that text into it."};

// Properties
inline constexpr TResString sFactKind{"Kind:"};
inline constexpr TResString sFactAddress{"Address:"};
inline constexpr TResString sFactPath{"In the repository:"};
inline constexpr TResString sFactLocal{"On this computer:"};
inline constexpr TResString sFactState{"State:"};
inline constexpr TResString sFactRevision{"Revision here:"};
inline constexpr TResString sFactChanged{"Last changed in revision:"};
inline constexpr TResString sFactChangedBy{"Changed by:"};
inline constexpr TResString sFactChangedAt{"Changed on:"};
inline constexpr TResString sFactLockOwner{"Checked out by:"};
inline constexpr TResString sFactLockSince{"Checked out since:"};
inline constexpr TResString sFactLockComment{"Check-out comment:"};
inline constexpr TResString sKindFolder{"Folder"};
inline constexpr TResString sKindFile{"File"};
inline constexpr TResString sNotLocked{"nobody"};
inline constexpr TResString sStateSame{"up to date, not changed"};
inline constexpr TResString sStateMissing{"not on this computer"};
inline constexpr TResString sStateOutHere{"checked out here"};
inline constexpr TResString sStateOutOther{"checked out by someone else"};
inline constexpr TResString sStateElsewhere{"checked out by you in another folder"};
inline constexpr TResString sStateChanged{"changed here"};
inline constexpr TResString sStateConflict{"in conflict"};
inline constexpr TResString sStateOld{"newer in the repository"};
inline constexpr TResString sStateDeleted{"deleted in the repository"};

// Adding from the repository
inline constexpr TResString sNotAsked{"The files in the repository are not known."};

// Renaming, cancelling
inline constexpr TResString sCancelled{"The command was cancelled."};

}  // namespace kestrel::svnscc
