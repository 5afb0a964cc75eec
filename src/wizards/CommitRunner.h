// Performs the activities of the commit browser's rows.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "expert/ExpertUi.h"
#include "wizards/CommitRows.h"

namespace kestrel::addin {

/// The comments to use.
struct TCommitComments {
  bool Individual = true;  ///< each row's comment; otherwise Summary for all
  std::string Summary;
};

/// The place of the browser's comments in TCommentMemory: for a file, or without one for the summary.
std::string CommitCommentPlace(const std::string& fileName = {});

/// Performs the activity of every row, one file at a time in row order, reloads changed files and shows a summary.  Saves
/// each file in the editor first.  A failure does not stop the others: the summary marks its row and the message window
/// shows the reason.  Makes all listed files writable.  Calls `progress` before each row and destroys it before the
/// summary is shown.  Records the comments of successful calls as used.
///
/// Throws EAbort, without any change, if there is no provider, one of its calls is running, or there is no provider
/// project for the project's directory.
void RunCommit(TCommandContext& context, const std::vector<TCommitRowData>& rows,
               const TCommitComments& comments, std::unique_ptr<IProgress> progress);

}  // namespace kestrel::addin
