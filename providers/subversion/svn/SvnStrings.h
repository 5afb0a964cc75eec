// Texts about the repository, the working copy and their files.
#pragma once

#include "host/Text.h"

// Notices
constexpr TResString sSending{"Sending %s."};
constexpr TResString sAdding{"Adding %s."};
constexpr TResString sRemoving{"Removing %s."};
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
constexpr TResString sUpdateDeleted{"%s was deleted in the repository and removed here."};
constexpr TResString sLockGone{"The lock on %s was taken away in the repository."};
constexpr TResString sLockTaken{"The lock on %s was taken away in the repository: %s has it now."};
constexpr TResString sResolved{"The conflict in %s is settled."};

// Failures; the first argument is the file
constexpr TResString sFileFailed{"%s: %s"};
constexpr TResString sOutsideProject{"the file is not in the project's folder"};
constexpr TResString sNotControlled{"the file is not under source control"};
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
constexpr TResString sStatusFailed{"The repository could not be asked: %s"};

// Opening a project
constexpr TResString sBadUrl{"\"%s\" is neither the address of a repository nor an absolute folder name."};
constexpr TResString sFinishedInterrupted{"A command that was interrupted in %s was cleaned up."};
constexpr TResString sInUse{"%s is still working on %s: try again when it is done."};
constexpr TResString sThisProvidersProgram{"Another program that has this project open"};
constexpr TResString sOthersProgram{"A program of another user"};
constexpr TResString sUnknownProgram{"Another program"};

// ProviderContext
constexpr TResString sNoRuntime{"The Apache portable runtime did not start."};

// History
constexpr TResString sOtherNameThen{
    "In revision %d the file was %s: check it out first to get that text into it."};

// Properties
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

// Adding from the repository
constexpr TResString sNotAsked{"The files in the repository are not known."};

// Renaming, cancelling
constexpr TResString sCancelled{"The command was cancelled."};
