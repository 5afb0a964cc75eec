// Check-in, and commits for other commands.
#include <algorithm>

#include "subversion/commands/CommandStrings.h"
#include "subversion/commands/CommandTable.h"
#include "subversion/commands/Commands.h"
#include "subversion/project/ProjectStrings.h"
#include "subversion/svn/LockOwner.h"

namespace kestrel::svnscc {
namespace {

/// The files of one call by what has to be done.
struct Batch {
  std::vector<std::string> changed;
  std::vector<std::string> unchanged;
  std::vector<std::string> idle;  // neither checked out nor changed
};

void Sort(ProviderContext& context, const std::string& path, bool isAlone, Batch& batch) {
  const LocalStatus local = ReadLocalStatus(context, path);
  const Step step = Require(StateOf(local), Command::CheckIn);
  if (!local.HasLock && (isAlone || local.Modified)) throw Failure(scc::SCC_E_NOTCHECKEDOUT, sNotCheckedOut);
  if (step == Step::Resolve) MarkResolved(context, path);
  auto& kind = !local.HasLock ? batch.idle : local.Modified ? batch.changed : batch.unchanged;
  kind.push_back(path);
}

/// Whether a commit was refused although no file has changed in the repository: a file that was moved away and back counts
/// as out of date.
bool IsOnlyBehind(const Survey& survey, const std::vector<std::string>& paths) {
  return survey.Result() >= 0 && std::all_of(paths.begin(), paths.end(), [&](const auto& path) {
           return survey.StateOf(path) == FileState::Edited;
         });
}

void CommitChanged(ProviderContext& context, const std::vector<std::string>& paths,
                   const std::string& comment, AfterCommit after, Outcome& outcome) {
  try {
    return Commit(context, paths, comment, after);
  } catch (const Failure& failure) {
    if (failure.Result() != scc::SCC_E_CHECKINCONFLICT) throw;
    const Survey survey(context, paths);
    if (!IsOnlyBehind(survey, paths)) {
      // A commit is atomic: every file fails, those that caused it with their own reason.
      for (const auto& path : paths)
        outcome.Try(path, [&] {
          Require(survey.StateOf(path), Command::CheckIn);
          throw failure;
        });
      return;
    }
  }
  Update(context, paths);
  Commit(context, paths, comment, after);
}

/// A commit would report broken locks; files that are not sent need a look.
void ReportLostLocks(ProviderContext& context, const std::vector<std::string>& paths) {
  if (paths.empty()) return;
  const Survey survey(context, paths);
  for (const auto& path : paths)
    if (survey.Result() >= 0 && (survey.StatusOf(path).Bits & scc::SCC_STATUS_CHECKEDOUT) == 0)
      ReportBrokenLock(context, path);
}

}  // namespace

void Commit(ProviderContext& context, const std::vector<std::string>& paths, const std::string& log,
            AfterCommit locks) {
  const Pool pool;
  std::string warning;
  const svn_revnum_t revision =
      context.Svn().Commit(log, warning, [&](svn_commit_callback2_t callback, void* baton) {
        return svn_client_commit6(ToArray(paths, pool), svn_depth_empty,
                                  /*keep_locks*/ locks == AfterCommit::KeepCheckedOut,
                                  /*keep_changelists*/ FALSE,
                                  /*commit_as_operations*/ FALSE, FALSE, FALSE, nullptr, nullptr, callback,
                                  baton, context.ClientContext(), pool);
      });
  if (SVN_IS_VALID_REVNUM(revision))
    context.Out().Info(Format(sCommitted.Text, {static_cast<long long>(revision)}));
  if (!warning.empty()) context.Out().Warning(warning);
}

scc::Long CheckIn(ProviderContext& context, Names names, const std::string& comment, AfterCommit after,
                  const CommandOptions& options) {
  Outcome outcome(context);
  Batch batch;
  const auto paths = outcome.PathsOf(names);
  ResolveFoldersAbove(context, paths);
  for (const auto& path : paths) outcome.Try(path, [&] { Sort(context, path, paths.size() == 1, batch); });

  if (!batch.changed.empty()) {
    try {
      CommitChanged(context, batch.changed, comment, after, outcome);
    } catch (const Failure& failure) {
      FailAll(context, batch.changed, failure, outcome);
    }
  }
  if (after == AfterCommit::Release && !options.KeepUnchangedOut) {
    for (const auto& path : batch.unchanged)
      context.Out().Info(Format(sNotChanged.Text, {context.Label(path)}));
    Unlock(context, batch.unchanged, outcome);
  } else {
    ReportLostLocks(context, batch.unchanged);
  }
  ReportNotCheckedOut(context, batch.idle, batch.idle.size() < paths.size(), outcome);
  return outcome.Result();
}

}  // namespace kestrel::svnscc
