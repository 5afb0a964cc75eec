// Texts of the file commands.
#pragma once

#include "host/Text.h"

constexpr TResString sAddFilesNoProvider{"Unable to add files, provider not assigned"};
constexpr TResString sRemoveFilesNoProvider{"Unable to remove files, provider not assigned"};
constexpr TResString sCheckInFilesNoProvider{"Unable to checkin files, provider not assigned"};
constexpr TResString sCheckOutFilesNoProvider{"Unable to checkout files, provider not assigned"};
constexpr TResString sUndoCheckOutNoProvider{"Unable to undo checkout, provider not assigned"};

constexpr TResString sAddFile{"Add File"};
constexpr TResString sAddFiles{"Add File(s)"};
constexpr TResString sRemoveFile{"Remove File"};
constexpr TResString sRemoveFiles{"Remove File(s)"};
constexpr TResString sGetFile{"Get File"};
constexpr TResString sCheckInFile{"Check In File"};
constexpr TResString sCheckInFiles{"Check In File(s)"};
constexpr TResString sCheckOutFile{"Check Out File"};
constexpr TResString sCheckOutFiles{"Check Out File(s)"};
constexpr TResString sUndoCheckOutFile{"Undo Check out File"};
constexpr TResString sUndoCheckOutFiles{"Undo Check out File(s)"};

constexpr TResString sAddFileSucceeded{" was added successfully"};
constexpr TResString sAddFilesSucceeded{"All files were added successfully"};
constexpr TResString sNotAllFilesAdded{"Not all files were added"};
constexpr TResString sRemoveFileSucceeded{" was removed successfully"};
constexpr TResString sRemoveFilesSucceeded{"All files were removed successfully"};
constexpr TResString sGetFileSucceeded{" was successfully retrieved"};
constexpr TResString sGetFilesSucceeded{"Selected files were successfully retrieved"};
constexpr TResString sCheckInFileSucceeded{" was checked in successfully"};
constexpr TResString sCheckInFilesSucceeded{"Selected files were checked in successfully"};
constexpr TResString sCheckOutFileSucceeded{" was checked out successfully"};
constexpr TResString sCheckOutFilesSucceeded{"Selected files were checked out successfully"};
constexpr TResString sUndoCheckOutFileSucceeded{" was checked back in successfully"};
constexpr TResString sUndoCheckOutFilesSucceeded{"Selected files were checked back in successfully"};

constexpr TResString sNoFilesAvailable{"No files available"};
constexpr TResString sUserCancelledDialog{"User cancelled dialog"};
constexpr TResString sCommentsFor{"Comments for %s"};

// What progress says while the provider works on all files at once.
constexpr TResString sGatheringFiles{"Gathering the files"};
constexpr TResString sAskingStatus{"Asking for the status of the files"};
constexpr TResString sWaitingForProvider{"Waiting for the source control provider"};

// The status column: what the quick difference of a candidate says.
constexpr TResString sProbeCurrent{"Current"};
constexpr TResString sProbeModified{"Modified"};
constexpr TResString sProbeNotControlled{"Not controlled"};
constexpr TResString sProbeUnauthorized{"Unauthorized"};
constexpr TResString sProbeAccessFailure{"Access failure"};
constexpr TResString sProbeError{"Error"};
constexpr TResString sProbeLocalFileMissing{"Local file missing"};
constexpr TResString sProbeUnknown{"Unknown"};
