#include "wizards/CommitPass.h"

#include <array>
#include <exception>
#include <utility>

#include "expert/CommentMemory.h"
#include "expert/Edits.h"
#include "expert/SccExpert.h"
#include "host/Paths.h"
#include "host/System.h"
#include "wizards/CommitPassStrings.h"
#include "wizards/CommitRowsStrings.h"

namespace {

struct TCall {
  const TStringList& Files;  // exactly one
  const std::string& Comment;
  TStateMessages Messages;
};

/// What an activity means.
struct TStep {
  TResString Line;
  bool (*Run)(TSCCProviderProject& project, TCall& call);  // nullptr: nothing is done
  bool TakesComment;
  bool Reloads;  // the local copy may have changed
};

/// By activity.
constexpr std::array kSteps{
    TStep{sNoAction, nullptr, false, false},
    TStep{sCommiting,
          [](auto& project, auto& call) {
            return project.CheckInFile(call.Files, call.Comment, false, call.Messages);
          },
          true, true},
    TStep{sCheckingOut,
          [](auto& project, auto& call) {
            return project.CheckOutFile(call.Files, call.Comment, call.Messages);
          },
          true, true},
    TStep{sUndoingCheckOut,
          [](auto& project, auto& call) { return project.UnCheckOutFile(call.Files, call.Messages); }, false,
          true},
    TStep{sAdding,
          [](auto& project, auto& call) {
            return project.AddFile(call.Files, call.Comment, false, call.Messages);
          },
          true, false},
    TStep{sRemoving, [](auto& project, auto& call) { return project.RemoveFile(call.Files, call.Messages); },
          false, false},
    TStep{sGettingLatest,
          [](auto& project, auto& call) { return project.GetFile(call.Files, call.Messages) == scc::SCC_OK; },
          false, true},
};
static_assert(kSteps.size() == kCommitActivities);

class TCommitPass {
 public:
  TCommitPass(TSccExpert& expert, const TCommitComments& comments)
      : expert_(expert),
        comments_(comments),
        directory_(ExtractFileDir(expert.GetCurrentProjectFile())),
        memory_(expert.GetCurrentProjectFile()),
        summary_(sProcessingFiles.str() + sCRLF.str()) {}

  void Execute(const std::vector<TCommitRowData>& rows, std::unique_ptr<IProgress> progress) {
    // A call whose own window has left the browser open to the user.
    expert_.Activities().RequireNoProviderCall();
    Project();
    for (std::size_t i = 0; i < rows.size(); ++i) {
      progress->Step(i, rows[i].FileName);
      CarryOut(rows[i]);
    }
    progress.reset();
    memory_.Save();
    Guarded(mwtError, sReloadError, [this] { expert_.ReloadFiles(changed_); });
    expert_.Forms().ShowMsgDialog(sCommitSummaryTitle, summary_, metInfo);
  }

 private:
  /// Looked up before every call: the host may have closed the project meanwhile.
  TSCCProviderProject& Project() { return expert_.RequireProject(directory_, sCommitNoProvider); }

  void CarryOut(const TCommitRowData& row) {
    const auto& step = kSteps[row.Activity];
    summary_.append(sCRLF).append(step.Line).append(RelativePath(directory_, row.FileName));
    if (step.Run) {
      const bool done = Attempt(step, row);
      if (done && step.Reloads) changed_.push_back(row.FileName);
      summary_.append(sOutcomeFollows).append(done ? sSucceeded : sFailed);
    }
    // Listed files are for working on, whatever the provider thinks of that.
    SetFileAttributesOf(row.FileName, faArchive);
  }

  /// Whatever goes wrong is this row's failure: the others are still to be done.
  bool Attempt(const TStep& step, const TCommitRowData& row) {
    const TStringList file{row.FileName};
    TCall call{file, comments_.Individual ? row.Comment : comments_.Summary, {}};
    try {
      SaveEdits(expert_, row.FileName);
      if (step.Run(Project(), call)) {
        if (step.TakesComment)
          memory_.Used(CommitCommentPlace(comments_.Individual ? row.FileName : std::string()), call.Comment);
        return true;
      }
    } catch (const std::exception& error) {
      call.Messages.back() = error.what();
    }
    WriteFailure(row.FileName, call.Messages);
    return false;
  }

  TSccExpert& expert_;
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

void CommitRows(TSccExpert& expert, const std::vector<TCommitRowData>& rows, const TCommitComments& comments,
                std::unique_ptr<IProgress> progress) {
  TCommitPass(expert, comments).Execute(rows, std::move(progress));
}
