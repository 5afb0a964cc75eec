// Check-in, and committing as a step of other commands.
#include <algorithm>

#include "CommandTable.h"
#include "Commands.h"
#include "SubversionSccStrings.h"

namespace svnscc {
namespace {

/// What is to be done with the files of one call.
struct Batch {
  std::vector<std::string> changed;
  std::vector<std::string> unchanged;
  std::vector<std::string> idle;  // neither checked out nor changed
};

void Sort(Session& session, const std::string& path, bool isAlone, Batch& batch) {
  const LocalStatus local = AskLocal(session, path);
  const Step step = Require(StateOf(local), Command::CheckIn);
  if (!local.HasLock && (isAlone || local.Modified)) throw Failure(scc::SCC_E_NOTCHECKEDOUT, sNotCheckedOut);
  if (step == Step::Settle) Settle(session, path);
  auto& kind = !local.HasLock ? batch.idle : local.Modified ? batch.changed : batch.unchanged;
  kind.push_back(path);
}

/// Whether a refused commit says no more than that the working copy is behind: files that were moved away and back are
/// as they were, but count as old.
bool IsOnlyBehind(const Survey& survey, const std::vector<std::string>& paths) {
  return survey.Result() >= 0 && std::all_of(paths.begin(), paths.end(), [&](const auto& path) {
           return survey.StateOf(path) == FileState::Edited;
         });
}

void CommitChanged(Session& session, const std::vector<std::string>& paths, const std::string& comment,
                   AfterCommit after, Outcome& outcome) {
  try {
    return Commit(session, paths, comment, after);
  } catch (const Failure& failure) {
    if (failure.Result() != scc::SCC_E_CHECKINCONFLICT) throw;
    const Survey survey(session, paths);
    if (!IsOnlyBehind(survey, paths)) {
      // A commit takes all of its files or none: each is told, the guilty ones with their reason.
      for (const auto& path : paths)
        outcome.Try(path, [&] {
          Require(survey.StateOf(path), Command::CheckIn);
          throw failure;
        });
      return;
    }
  }
  Update(session, paths);
  Commit(session, paths, comment, after);
}

/// A lock that was taken away is not noticed while nothing is sent.
void TellLostLocks(Session& session, const std::vector<std::string>& paths) {
  if (paths.empty()) return;
  const Survey survey(session, paths);
  for (const auto& path : paths)
    if (survey.Result() >= 0 && (survey.StatusOf(path).Bits & scc::SCC_STATUS_CHECKEDOUT) == 0)
      TellLockGone(session, path);
}

}  // namespace

void Commit(Session& session, const std::vector<std::string>& paths, const std::string& log,
            AfterCommit locks) {
  const Pool pool;
  std::string warning;
  const svn_revnum_t revision =
      session.Svn().Commit(log, warning, [&](svn_commit_callback2_t callback, void* baton) {
        return svn_client_commit6(ToArray(paths, pool), svn_depth_empty,
                                  /*keep_locks*/ locks == AfterCommit::KeepCheckedOut,
                                  /*keep_changelists*/ FALSE,
                                  /*commit_as_operations*/ FALSE, FALSE, FALSE, nullptr, nullptr, callback,
                                  baton, session.Context(), pool);
      });
  if (SVN_IS_VALID_REVNUM(revision))
    session.Out().Info(Format(sCommitted.Text, {static_cast<long long>(revision)}));
  if (!warning.empty()) session.Out().Warning(warning);
}

scc::Long CheckIn(Session& session, Names names, const std::string& comment, AfterCommit after,
                  const CommandOptions& options) {
  Outcome outcome(session);
  Batch batch;
  const auto paths = outcome.PathsOf(names);
  SettleFoldersAbove(session, paths);
  for (const auto& path : paths) outcome.Try(path, [&] { Sort(session, path, paths.size() == 1, batch); });

  if (!batch.changed.empty()) {
    try {
      CommitChanged(session, batch.changed, comment, after, outcome);
    } catch (const Failure& failure) {
      for (const auto& path : batch.changed) outcome.Fail(path, failure);
    }
  }
  if (after == AfterCommit::Release && !options.KeepUnchangedOut) {
    for (const auto& path : batch.unchanged)
      session.Out().Info(Format(sNotChanged.Text, {session.Label(path)}));
    Unlock(session, batch.unchanged, outcome);
  } else {
    TellLostLocks(session, batch.unchanged);
  }
  TellIdle(session, batch.idle, batch.idle.size() < paths.size(), outcome);
  return outcome.Result();
}

}  // namespace svnscc
