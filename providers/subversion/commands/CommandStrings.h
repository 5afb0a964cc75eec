// Texts of the file commands.
#pragma once

#include "system/Text.h"

namespace kestrel::svnscc {

// Notices
inline constexpr TResString sKeptBeside{"%s was here already and was kept as %s."};
inline constexpr TResString sUpToDate{"%s is up to date."};
inline constexpr TResString sAllUpToDate{"All files are up to date."};
inline constexpr TResString sNotChanged{"%s was not changed: its lock is released."};

// Failures; the first argument is the file
inline constexpr TResString sFileMissing{"there is no such file on this computer"};
inline constexpr TResString sNotCheckedOut{"the file is not checked out here"};
inline constexpr TResString sOtherRefused{"nothing was sent, because another file of the call was refused"};
inline constexpr TResString sAlreadyOut{"%s is checked out already."};
inline constexpr TResString sStillOut{"the file is checked out: check it in or undo the check-out first"};
inline constexpr TResString sDeletedInRepository{"the file was deleted in the repository"};
inline constexpr TResString sAlreadyControlled{"the file is under source control already"};
inline constexpr TResString sNotAFile{"it is not a file"};
inline constexpr TResString sConflictMarks{
    "the file still has conflict marks: edit the marked places and check it in, or undo the check-out"};
inline constexpr TResString sOpenConflict{
    "it was changed here and in the repository, and the two versions could not be merged: Get Latest Version "
    "or Undo Check Out takes the repository's and keeps yours in a copy"};
inline constexpr TResString sLostConflict{
    "it was changed here, and moved or deleted in the repository: Add brings your version back, Get Latest "
    "Version or Undo Check Out gives it up and keeps a copy"};
inline constexpr TResString sGiveUpTitle{"Take the Repository's Version?"};
inline constexpr TResString sGiveUp{
    "These files were changed here, and in the repository they were changed, moved or deleted; the versions "
    "cannot be "
    "merged:\n\n%s\n\n"
    "Take what the repository has? What it does not have is removed here. Your versions are kept in copies "
    "beside the "
    "files."};
inline constexpr TResString sInTheWay{
    "a file of that name is here which never came from the repository: Get Latest Version fetches the "
    "repository's and "
    "keeps yours in a copy"};
inline constexpr TResString sNeverSeen{
    "the repository has a version that you do not have: get the latest version first"};
inline constexpr TResString sCheckedInAhead{
    "it was changed in the repository meanwhile: get the latest version, then check it in"};
inline constexpr TResString sLeftAsItIs{"%s is not checked out here: it was left as it is."};
inline constexpr TResString sAddedAlready{"%s was added already."};
inline constexpr TResString sAddedNotOut{"%s was added, and could not be checked out: %s"};

// Opening a project
inline constexpr TResString sTakeOverTitle{"Take Over Locks?"};
inline constexpr TResString sTakeOver{
    "A check-out in this folder was interrupted before it was done. Its locks are still in the "
    "repository:\n\n%s\n\n"
    "Take them over?"};
inline constexpr TResString sLeftOver{
    "a check-out that was interrupted here left its lock: check the file out again and agree to take it "
    "over"};

// History
inline constexpr TResString sEditsKept{"The changes to %s were kept in %s."};
inline constexpr TResString sGotRevision{"Fetched revision %d of %s."};

// Renaming, cancelling
inline constexpr TResString sGetBeforeRename{
    "the file is not the newest, or in conflict: get it and check it in first"};
inline constexpr TResString sRenameLog{"Rename %s to %s."};

}  // namespace kestrel::svnscc
