// Check-in, and committing as a step of other commands.
#include "Commands.h"
#include "LocalStatus.h"
#include "SubversionSccStrings.h"
#include "host/System.h"

namespace svnscc {
namespace {

/// Whether Subversion's marks of a conflict still stand in the text.
bool HasConflictMarks(const std::string& path) {
  const std::string text = "\n" + ReadWholeFile(path);
  return text.find("\n<<<<<<< ") != std::string::npos && text.find("\n>>>>>>> ") != std::string::npos;
}

/// A conflict is settled by editing the file: there is no other command for it.
void SettleConflict(Session& session, const std::string& path) {
  if (HasConflictMarks(path)) throw Failure(scc::SCC_E_FIXMERGE, sConflictMarks);
  const Pool pool;
  session.Svn().Run(svn_client_resolve(path.c_str(), svn_depth_empty, svn_wc_conflict_choose_merged,
                                       session.Context(), pool));
}

LocalStatus RequireCheckedOut(Session& session, const std::string& path) {
  const LocalStatus local = AskLocal(session, path);
  if (!local.IsControlled())
    throw local.State == LocalState::Absent ? Failure(scc::SCC_E_FILENOTEXIST, sFileMissing)
                                            : Failure(scc::SCC_E_FILENOTCONTROLLED, sNotControlled);
  if (local.State == LocalState::Missing) throw Failure(scc::SCC_E_FILENOTEXIST, sFileMissing);
  if (!local.HasLock) throw Failure(scc::SCC_E_NOTCHECKEDOUT, sNotCheckedOut);
  if (local.Conflicted) SettleConflict(session, path);
  return local;
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
  std::vector<std::string> changed;
  std::vector<std::string> unchanged;
  for (const auto& path : outcome.PathsOf(names))
    outcome.Try(path, [&] {
      const bool modified = RequireCheckedOut(session, path).Modified;
      (modified ? changed : unchanged).push_back(path);
    });

  if (!changed.empty()) {
    try {
      Commit(session, changed, comment, after);
    } catch (const Failure& failure) {
      // A commit takes all of its files or none.
      for (const auto& path : changed) outcome.Fail(path, failure);
    }
  }
  if (after == AfterCommit::Release && !options.KeepUnchangedOut) {
    for (const auto& path : unchanged) session.Out().Info(Format(sNotChanged.Text, {session.Label(path)}));
    Unlock(session, unchanged, outcome);
  }
  return outcome.Result();
}

}  // namespace svnscc
