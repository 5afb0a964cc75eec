// Texts of the file commands.
#pragma once

#include "system/Text.h"

namespace kestrel::addin {

inline constexpr TResString sAddFilesNoProvider{"Unable to add files, provider not assigned"};
inline constexpr TResString sRemoveFilesNoProvider{"Unable to remove files, provider not assigned"};
inline constexpr TResString sCheckInFilesNoProvider{"Unable to checkin files, provider not assigned"};
inline constexpr TResString sCheckOutFilesNoProvider{"Unable to checkout files, provider not assigned"};
inline constexpr TResString sUndoCheckOutNoProvider{"Unable to undo checkout, provider not assigned"};

inline constexpr TResString sAddFile{"Add File"};
inline constexpr TResString sAddFiles{"Add File(s)"};
inline constexpr TResString sRemoveFile{"Remove File"};
inline constexpr TResString sRemoveFiles{"Remove File(s)"};
inline constexpr TResString sGetFile{"Get File"};
inline constexpr TResString sCheckInFile{"Check In File"};
inline constexpr TResString sCheckInFiles{"Check In File(s)"};
inline constexpr TResString sCheckOutFile{"Check Out File"};
inline constexpr TResString sCheckOutFiles{"Check Out File(s)"};
inline constexpr TResString sUndoCheckOutFile{"Undo Check out File"};
inline constexpr TResString sUndoCheckOutFiles{"Undo Check out File(s)"};

inline constexpr TResString sAddFileSucceeded{" was added successfully"};
inline constexpr TResString sAddFilesSucceeded{"All files were added successfully"};
inline constexpr TResString sNotAllFilesAdded{"Not all files were added"};
inline constexpr TResString sRemoveFileSucceeded{" was removed successfully"};
inline constexpr TResString sRemoveFilesSucceeded{"All files were removed successfully"};
inline constexpr TResString sGetFileSucceeded{" was successfully retrieved"};
inline constexpr TResString sGetFilesSucceeded{"Selected files were successfully retrieved"};
inline constexpr TResString sCheckInFileSucceeded{" was checked in successfully"};
inline constexpr TResString sCheckInFilesSucceeded{"Selected files were checked in successfully"};
inline constexpr TResString sCheckOutFileSucceeded{" was checked out successfully"};
inline constexpr TResString sCheckOutFilesSucceeded{"Selected files were checked out successfully"};
inline constexpr TResString sUndoCheckOutFileSucceeded{" was checked back in successfully"};
inline constexpr TResString sUndoCheckOutFilesSucceeded{"Selected files were checked back in successfully"};

inline constexpr TResString sNoFilesAvailable{"No files available"};
inline constexpr TResString sUserCancelledDialog{"User cancelled dialog"};
inline constexpr TResString sCommentsFor{"Comments for %s"};

// Progress of provider calls on all files at once.
inline constexpr TResString sGatheringFiles{"Gathering the files"};
inline constexpr TResString sAskingStatus{"Asking for the status of the files"};
inline constexpr TResString sWaitingForProvider{"Waiting for the source control provider"};

// The status column: results of the quick difference.
inline constexpr TResString sProbeCurrent{"Current"};
inline constexpr TResString sProbeModified{"Modified"};
inline constexpr TResString sProbeNotControlled{"Not controlled"};
inline constexpr TResString sProbeUnauthorized{"Unauthorized"};
inline constexpr TResString sProbeAccessFailure{"Access failure"};
inline constexpr TResString sProbeError{"Error"};
inline constexpr TResString sProbeLocalFileMissing{"Local file missing"};
inline constexpr TResString sProbeUnknown{"Unknown"};

}  // namespace kestrel::addin
