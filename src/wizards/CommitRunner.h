// Carries out what the commit browser's rows say, without its window.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "expert/ExpertUi.h"
#include "wizards/CommitRows.h"

namespace kestrel::addin {

/// Which comment a row's provider call gets.
struct TCommitComments {
  bool Individual = true;  ///< each row's own, else the summary for all
  std::string Summary;
};

/// Where the browser's comments stand in the memory of comments: a file's own, or with no file the summary.
std::string CommitCommentPlace(const std::string& fileName = {});

/// Carries out the activity of every row, one file at a time in row order, reloads what changed and shows a summary of
/// what was done.  What the editor shows of a file is saved first.  A failure marks only its row in the summary; its
/// reason goes to the message window.  Afterwards every listed file on disk is writable.  `progress` is told each row
/// before it is begun; it ends before the summary is shown.  Comments that reach the provider are noted as used.
///
/// Throws EAbort, with nothing touched, when there is no provider, when a call of it is running, or when the project's
/// directory is no provider project.
void RunCommit(TCommandContext& context, const std::vector<TCommitRowData>& rows,
               const TCommitComments& comments, std::unique_ptr<IProgress> progress);

}  // namespace kestrel::addin
