// Texts of the provider layer.
#pragma once

#include "system/Text.h"

namespace kestrel::addin {

// Discovery
inline constexpr TResString sNoProvidersInstalled{"No source code control providers installed"};
inline constexpr TResString sNoProvidersListed{"No source code control providers listed in registry"};

// Creating a provider
inline constexpr TResString sNoProviderPath{"A provider path was not specified (SCC provider installed?)"};
inline constexpr TResString sLoadLibraryFailed{"SCC DLL Loadlibrary failed"};
inline constexpr TResString sLibraryNotLoaded{"The provider library %s could not be loaded: %s"};
inline constexpr TResString sInitNotAuthorized{"The user is not allowed to perform the specified operation"};
inline constexpr TResString sInitNonSpecific{"Non-specific failure, SCC system was not initialized"};
inline constexpr TResString sInitFailed{"System could not be initialized"};

// Faults at the border
inline constexpr TResString sBufferOverrun{
    "The provider \"%s\" wrote past the end of a buffer (%s). Nothing was damaged, but its answer may be "
    "wrong."};
inline constexpr TResString sCanaryOverrun{
    "The provider \"%s\" wrote far past the end of a buffer (%s). Memory of this program may be damaged: "
    "save "
    "your work and start it again."};
inline constexpr TResString sLineCutMark{" [...]"};
inline constexpr TResString sTextCut{
    "The provider \"%s\" gave a text that is too long (%s): it was cut to %d bytes."};
inline constexpr TResString sProviderBusy{"The source code control provider is still busy with another call"};
inline constexpr TResString sUnknownFault{"The source code control provider failed for an unknown reason"};
inline constexpr TResString sProviderFault{"The source code control provider failed in %s: %s"};
inline constexpr TResString sNotInCodePage{
    "\"%s\" cannot be passed to the source code control provider: the system's code page lacks a character "
    "of it"};
inline constexpr TResString sNotFromCodePage{
    "The provider \"%s\" gave a name that cannot be passed back to it, because it is no text of the "
    "system's code page: \"%s\" (%s)"};
inline constexpr TResString sPathTooLong{
    "\"%s\" is too long for the source code control provider: a path may have %d bytes at most"};
inline constexpr TResString sTooManyFiles{
    "%d files are too many for one request to the source code control provider: it can take %d at most"};

// Projects
inline constexpr TResString sProjectComment{"Project Comment; Date: %s"};
inline constexpr TResString sNewProjectCreated{"A new project was created"};
inline constexpr TResString sExistingProjectSelected{"An existing project was selected"};
inline constexpr TResString sVersion{"%d.%d"};

// File commands
inline constexpr TResString sQueryListEmpty{"Cannot perform query, filelist empty"};
inline constexpr TResString sCheckOutListEmpty{"Cannot checkout file, filelist empty"};
inline constexpr TResString sAddListEmpty{"Cannot add file, filelist empty"};
inline constexpr TResString sCheckInListEmpty{"Cannot check-in file, filelist empty"};
inline constexpr TResString sRemoveListEmpty{"Cannot remove file, filelist empty"};
inline constexpr TResString sGetListEmpty{"Cannot get file, filelist empty"};
inline constexpr TResString sHistoryNameBlank{"Cannot show file history, filename blank"};
inline constexpr TResString sCheckOutComment{"CheckOut File: %s"};
inline constexpr TResString sCheckInComment{"CheckIn File: %s"};
inline constexpr TResString sRemoveComment{"File Removed: %s"};
inline constexpr TResString sAddFromSccOk{"SccAddFromScc returned OK"};

// Return codes
inline constexpr TResString sConnectionFailure{"Connection failure"};
inline constexpr TResString sFileNotExist{"Local file not found"};
inline constexpr TResString sFileSyntaxError{"File syntax error"};
inline constexpr TResString sNotAuthorized{"The user is not allowed to perform this operation"};
inline constexpr TResString sProjectNotOpen{"No project is currently open"};
inline constexpr TResString sInvalidFilePath{"Invalid or unusable file path"};
inline constexpr TResString sProjectSyntaxError{"Invalid project syntax"};
inline constexpr TResString sProjectAlreadyOpen{"Project already open"};
inline constexpr TResString sInvalidUser{"User could not login to SCC provider"};
inline constexpr TResString sShellFailure{"Shell failure"};
inline constexpr TResString sFixMerge{
    "File has been auto-merged, but has not been checked in due to a merge conflict which must be manually "
    "resolved"};
inline constexpr TResString sVerifyMerge{
    "File has been auto-merged, but has not been checked in pending user verification"};
inline constexpr TResString sTypeNotSupported{
    "The type of the file (e.g. binary) is not one supported by the source code control system"};
inline constexpr TResString sOperationNotPerformed{"Operation not performed"};
inline constexpr TResString sNonSpecificError{"Non-specific failure, no action was taken"};
inline constexpr TResString sOperationNotSupported{
    "The source code control system does not support this operation"};
inline constexpr TResString sNoSpecifiedVersion{"Specified an invalid version or date/time"};
inline constexpr TResString sFileIsCheckedOut{"Cannot remove a file that the user currently has checked-out"};
inline constexpr TResString sFileNotControlled{"The selected file is not under source code control"};
inline constexpr TResString sFileAlreadyExists{"The selected file is already under source code control"};
inline constexpr TResString sCheckInConflict{
    "Check-in could not be performed because another user has checked-in ahead"};
inline constexpr TResString sAccessFailure{
    "Problem accessing the SCC system, network or contention problem. Try later"};
inline constexpr TResString sFileOutExclusive{"Someone else has done an exclusive checkout on this file"};
inline constexpr TResString sFileIsLocked{"File is locked prohibiting creation of new versions"};
inline constexpr TResString sAlreadyCheckedOut{"User already has file checked-out"};
inline constexpr TResString sNotCheckedOut{"User has not checked-out the file so it can not be checked in"};
inline constexpr TResString sCouldNotCreateProject{"Could not create project"};
inline constexpr TResString sUnknownProject{"Project is unknown to SCCS"};
inline constexpr TResString sInitializeFailed{"Project could not be initialized"};
inline constexpr TResString sOk{""};
inline constexpr TResString sAdvancedSupport{"The provider supports advanced options for the command"};
inline constexpr TResString sOperationCancelled{"Operation was cancelled"};
inline constexpr TResString sProjectCreated{"Project created"};
inline constexpr TResString sReloadFile{
    "The version control system actually modified the on-disk file during the history"};
inline constexpr TResString _sFileNotAffected{
    "File not affected"};  // unused: the code shows the text above, see kCodes
inline constexpr TResString sFileDiffers{
    "The file on disk is different from the file in source code control"};
inline constexpr TResString sShareSubprojectOk{"Share subproject ok"};
inline constexpr TResString sUndefinedCode{"Undefined error or warning"};

// File status; the placeholder is the file's name without its directory
inline constexpr TResString sStatusNone{"[%s]: No status information available"};
inline constexpr TResString sStatusNotControlled{"[%s]: Not under source code control"};
inline constexpr TResString sStatusControlled{"[%s]: Under source code control"};
inline constexpr TResString sStatusCheckedOut{"[%s]: Checked out by you"};
inline constexpr TResString sStatusOutOther{"[%s]: Checked out to another user"};
inline constexpr TResString sStatusOutExclusive{"[%s]: Checked out exclusively to someone"};
inline constexpr TResString sStatusOutMultiple{"[%s]: Checked out to multiple people"};
inline constexpr TResString sStatusOutOfDate{"[%s]: Not the most recent"};
inline constexpr TResString sStatusDeleted{"[%s]: Deleted from the project"};
inline constexpr TResString sStatusLocked{"[%s]: No more versions allowed"};
inline constexpr TResString sStatusMerged{"[%s]: Has been merged but not yet fixed/verified"};
inline constexpr TResString sStatusShared{"[%s]: Shared between projects"};
inline constexpr TResString sStatusPinned{"[%s]: Shared to an explicit version"};
inline constexpr TResString sStatusModified{"[%s]: Has been modified/broken/violated"};
inline constexpr TResString sStatusOutByUser{"[%s]: Checked out to current user"};

}  // namespace kestrel::addin
