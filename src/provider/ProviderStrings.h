// Texts of the provider layer.
#pragma once

#include "host/Text.h"

// Discovery
constexpr TResString sNoProvidersInstalled{"No source code control providers installed"};
constexpr TResString sNoProvidersListed{"No source code control providers listed in registry"};

// Creating a provider
constexpr TResString sNoProviderPath{"A provider path was not specified (SCC provider installed?)"};
constexpr TResString sLoadLibraryFailed{"SCC DLL Loadlibrary failed"};
constexpr TResString sLibraryNotLoaded{"The provider library %s could not be loaded: %s"};
constexpr TResString sInitNotAuthorized{"The user is not allowed to perform the specified operation"};
constexpr TResString sInitNonSpecific{"Non-specific failure, SCC system was not initialized"};
constexpr TResString sInitFailed{"System could not be initialized"};

// Faults at the border
constexpr TResString sBufferOverrun{
    "The provider \"%s\" wrote past the end of a buffer (%s). Nothing was damaged, but its answer may be "
    "wrong."};
constexpr TResString sGuardOverrun{
    "The provider \"%s\" wrote far past the end of a buffer (%s). Memory of this program may be damaged: "
    "save "
    "your work and start it again."};
constexpr TResString sLineCutMark{" [...]"};
constexpr TResString sTextCut{
    "The provider \"%s\" gave a text that is too long (%s): it was cut to %d bytes."};
constexpr TResString sProviderBusy{"The source code control provider is still busy with another call"};
constexpr TResString sUnknownFault{"The source code control provider failed for an unknown reason"};
constexpr TResString sProviderFault{"The source code control provider failed in %s: %s"};
constexpr TResString sNotInCodePage{
    "\"%s\" cannot be passed to the source code control provider: the system's code page lacks a character "
    "of it"};
constexpr TResString sNotFromCodePage{
    "The provider \"%s\" gave a name that cannot be passed back to it, because it is no text of the "
    "system's code page: \"%s\" (%s)"};
constexpr TResString sPathTooLong{
    "\"%s\" is too long for the source code control provider: a path may have %d bytes at most"};
constexpr TResString sTooManyFiles{
    "%d files are too many for one request to the source code control provider: it can take %d at most"};

// Projects
constexpr TResString sProjectComment{"Project Comment; Date: %s"};
constexpr TResString sNewProjectCreated{"A new project was created"};
constexpr TResString sExistingProjectSelected{"An existing project was selected"};
constexpr TResString sVersion{"%d.%d"};

// File commands
constexpr TResString sQueryListEmpty{"Cannot perform query, filelist empty"};
constexpr TResString sCheckOutListEmpty{"Cannot checkout file, filelist empty"};
constexpr TResString sAddListEmpty{"Cannot add file, filelist empty"};
constexpr TResString sCheckInListEmpty{"Cannot check-in file, filelist empty"};
constexpr TResString sRemoveListEmpty{"Cannot remove file, filelist empty"};
constexpr TResString sGetListEmpty{"Cannot get file, filelist empty"};
constexpr TResString sHistoryNameBlank{"Cannot show file history, filename blank"};
constexpr TResString sCheckOutComment{"CheckOut File: %s"};
constexpr TResString sCheckInComment{"CheckIn File: %s"};
constexpr TResString sRemoveComment{"File Removed: %s"};
constexpr TResString sAddFromSccOk{"SccAddFromScc returned OK"};

// Return codes
constexpr TResString sConnectionFailure{"Connection failure"};
constexpr TResString sFileNotExist{"Local file not found"};
constexpr TResString sFileSyntaxError{"File syntax error"};
constexpr TResString sNotAuthorized{"The user is not allowed to perform this operation"};
constexpr TResString sProjectNotOpen{"No project is currently open"};
constexpr TResString sInvalidFilePath{"Invalid or unusable file path"};
constexpr TResString sProjectSyntaxError{"Invalid project syntax"};
constexpr TResString sProjectAlreadyOpen{"Project already open"};
constexpr TResString sInvalidUser{"User could not login to SCC provider"};
constexpr TResString sShellFailure{"Shell failure"};
constexpr TResString sFixMerge{
    "File has been auto-merged, but has not been checked in due to a merge conflict which must be manually "
    "resolved"};
constexpr TResString sVerifyMerge{
    "File has been auto-merged, but has not been checked in pending user verification"};
constexpr TResString sTypeNotSupported{
    "The type of the file (e.g. binary) is not one supported by the source code control system"};
constexpr TResString sOperationNotPerformed{"Operation not performed"};
constexpr TResString sNonSpecificError{"Non-specific failure, no action was taken"};
constexpr TResString sOperationNotSupported{"The source code control system does not support this operation"};
constexpr TResString sNoSpecifiedVersion{"Specified an invalid version or date/time"};
constexpr TResString sFileIsCheckedOut{"Cannot remove a file that the user currently has checked-out"};
constexpr TResString sFileNotControlled{"The selected file is not under source code control"};
constexpr TResString sFileAlreadyExists{"The selected file is already under source code control"};
constexpr TResString sCheckInConflict{
    "Check-in could not be performed because another user has checked-in ahead"};
constexpr TResString sAccessFailure{
    "Problem accessing the SCC system, network or contention problem. Try later"};
constexpr TResString sFileOutExclusive{"Someone else has done an exclusive checkout on this file"};
constexpr TResString sFileIsLocked{"File is locked prohibiting creation of new versions"};
constexpr TResString sAlreadyCheckedOut{"User already has file checked-out"};
constexpr TResString sNotCheckedOut{"User has not checked-out the file so it can not be checked in"};
constexpr TResString sCouldNotCreateProject{"Could not create project"};
constexpr TResString sUnknownProject{"Project is unknown to SCCS"};
constexpr TResString sInitializeFailed{"Project could not be initialized"};
constexpr TResString sOk{""};
constexpr TResString sAdvancedSupport{"The provider supports advanced options for the command"};
constexpr TResString sOperationCancelled{"Operation was cancelled"};
constexpr TResString sProjectCreated{"Project created"};
constexpr TResString sReloadFile{
    "The version control system actually modified the on-disk file during the history"};
constexpr TResString _sFileNotAffected{"File not affected"};  // its code shows the text above, see kCodes
constexpr TResString sFileDiffers{"The file on disk is different from the file in source code control"};
constexpr TResString sShareSubprojectOk{"Share subproject ok"};
constexpr TResString sUndefinedCode{"Undefined error or warning"};

// File status; the placeholder takes the file's name without its directory
constexpr TResString sStatusNone{"[%s]: No status information available"};
constexpr TResString sStatusNotControlled{"[%s]: Not under source code control"};
constexpr TResString sStatusControlled{"[%s]: Under source code control"};
constexpr TResString sStatusCheckedOut{"[%s]: Checked out by you"};
constexpr TResString sStatusOutOther{"[%s]: Checked out to another user"};
constexpr TResString sStatusOutExclusive{"[%s]: Checked out exclusively to someone"};
constexpr TResString sStatusOutMultiple{"[%s]: Checked out to multiple people"};
constexpr TResString sStatusOutOfDate{"[%s]: Not the most recent"};
constexpr TResString sStatusDeleted{"[%s]: Deleted from the project"};
constexpr TResString sStatusLocked{"[%s]: No more versions allowed"};
constexpr TResString sStatusMerged{"[%s]: Has been merged but not yet fixed/verified"};
constexpr TResString sStatusShared{"[%s]: Shared between projects"};
constexpr TResString sStatusPinned{"[%s]: Shared to an explicit version"};
constexpr TResString sStatusModified{"[%s]: Has been modified/broken/violated"};
constexpr TResString sStatusOutByUser{"[%s]: Checked out to current user"};
