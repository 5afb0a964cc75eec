#include "wizards/CommitRunner.h"

#include <array>
#include <exception>
#include <utility>

#include "expert/CommandContext.h"
#include "expert/CommentMemory.h"
#include "expert/Edits.h"
#include "expert/FileCommands.h"
#include "expert/SccSystem.h"
#include "system/Paths.h"
#include "system/System.h"
#include "wizards/CommitRowsStrings.h"
#include "wizards/CommitRunnerStrings.h"

namespace kestrel::addin {

namespace {

/// How an activity is performed.
struct TStep {
  TResString Line;
  const TFileCommand* Command;  // null: no operation
  bool TakesComment;
  bool Reloads;  // the local copy may have changed
};

/// By activity.
constexpr std::array kSteps{
    TStep{sNoAction, nullptr, false, false},
    TStep{sCommiting, &kCheckInFiles, true, true},
    TStep{sCheckingOut, &kCheckOutFiles, true, true},
    TStep{sUndoingCheckOut, &kUndoCheckOut, false, true},
    TStep{sAdding, &kAddFiles, true, false},
    TStep{sRemoving, &kRemoveFiles, false, false},
    TStep{sGettingLatest, &kGetLatestVersion, false, true},
};
static_assert(kSteps.size() == kCommitActivities);

class TCommitRunner {
 public:
  TCommitRunner(TCommandContext& context, const TCommitComments& comments)
      : context_(context),
        comments_(comments),
        directory_(ExtractFileDir(GetCurrentProjectFile())),
        memory_(GetCurrentProjectFile()),
        summary_(sProcessingFiles.str() + sCRLF.str()) {}

  void Execute(const std::vector<TCommitRowData>& rows, std::unique_ptr<IProgress> progress) {
    // While a provider shows a modeless window, the user can still press Commit.
    context_.Activities.RequireNoProviderCall();
    Project();
    for (std::size_t i = 0; i < rows.size(); ++i) {
      progress->Step(i, rows[i].FileName);
      CarryOut(rows[i]);
    }
    progress.reset();
    memory_.Save();
    RunCatching([this] { ReloadFiles(changed_); }, ToLog(mwtError, sReloadError));
    context_.Ui.ShowMsgDialog(sCommitSummaryTitle, summary_, metInfo);
  }

 private:
  /// Looked up before each call, because the host may have closed the project.
  TSCCProviderProject& Project() {
    context_.Activities.RunWaiting();
    return context_.Provider.SelectProject(directory_, sCommitNoProvider);
  }

  void CarryOut(const TCommitRowData& row) {
    const auto& step = kSteps[row.Activity];
    summary_.append(sCRLF).append(step.Line).append(RelativePath(directory_, row.FileName));
    if (step.Command) {
      const bool done = Call(step, row);
      if (done && step.Reloads) changed_.push_back(row.FileName);
      summary_.append(sOutcomeFollows).append(done ? sSucceeded : sFailed);
    }
    // Intentional: listed files become writable, whatever the provider set.
    SetFileAttributesOf(row.FileName, faArchive);
  }

  /// Reports any failure for this row only.  Returns whether it succeeded.
  bool Call(const TStep& step, const TCommitRowData& row) {
    const auto& comment = comments_.Individual ? row.Comment : comments_.Summary;
    TCallResult result;
    const auto call = [&] {
      SaveEdits(row.FileName);
      result = step.Command->Run(Project(), context_.Statuses,
                                 {{row.FileName}, comment, /*KeepCheckedOut*/ false});
    };
    RunCatching(call, [&](const std::exception& error) { result = {false, {"", "", error.what()}}; });
    if (!result.Done)
      WriteFailure(row.FileName, result.Messages);
    else if (step.TakesComment)
      memory_.RecordUsed(CommitCommentPlace(comments_.Individual ? row.FileName : std::string()), comment);
    return result.Done;
  }

  TCommandContext& context_;
  const TCommitComments& comments_;
  const std::string directory_;
  TCommentMemory memory_;
  std::string summary_;
  TStringList changed_;
};

}  // namespace

std::string CommitCommentPlace(const std::string& fileName) {
  return TCommentMemory::Place("browser", fileName);
}

void RunCommit(TCommandContext& context, const std::vector<TCommitRowData>& rows,
               const TCommitComments& comments, std::unique_ptr<IProgress> progress) {
  TCommitRunner(context, comments).Execute(rows, std::move(progress));
}

}  // namespace kestrel::addin
