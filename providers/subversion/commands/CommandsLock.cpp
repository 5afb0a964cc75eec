// Check-out and undo check-out: locks.
#include <svn_dirent_uri.h>

#include <algorithm>

#include "subversion/commands/CommandStrings.h"
#include "subversion/commands/CommandTable.h"
#include "subversion/commands/Commands.h"
#include "subversion/commands/TemporaryRename.h"
#include "subversion/svn/LocalStatus.h"
#include "subversion/svn/LockOwner.h"
#include "subversion/svn/NodeInfo.h"
#include "subversion/svn/Question.h"
#include "subversion/svn/Repository.h"
#include "subversion/svn/SvnStrings.h"

namespace kestrel::svnscc {
namespace {

/// Locks `paths`; returns the refused ones with the reasons.
std::map<std::string, Failure> TryLock(ProviderContext& context, const std::vector<std::string>& paths,
                                       const std::string& comment, ForeignLocks others) {
  const Pool pool;
  context.DrainRefusals();
  if (paths.empty()) return {};
  std::vector<std::string>
      done;  // can leave the journal; a refused path may be there from an earlier check-out
  std::copy_if(paths.begin(), paths.end(), std::back_inserter(done),
               [&](const std::string& path) { return !context.Journal().Has(path); });
  context.Journal().Add(paths);
  context.Svn().Run(svn_client_lock(ToArray(paths, pool), comment.c_str(),
                                    /*steal_lock*/ others == ForeignLocks::Steal, context.ClientContext(),
                                    pool));
  auto refused = context.DrainRefusals();
  std::copy_if(paths.begin(), paths.end(), std::back_inserter(done),
               [&](const std::string& path) { return !refused.contains(path); });
  context.Journal().Remove(done);
  return refused;
}

/// Offers to take over refused locks that an interrupted check-out here left.
void OfferTakeOver(ProviderContext& context, const std::string& comment, const Survey& survey,
                   std::map<std::string, Failure>& refused) {
  std::vector<std::string> left;
  std::string labels;
  for (const auto& [path, refusal] : refused) {
    if (!refusal.Has(SVN_ERR_FS_PATH_ALREADY_LOCKED) || !survey.StatusOf(path).LeftOver) continue;
    left.push_back(path);
    labels += (labels.empty() ? "" : "\n") + context.Label(path);
  }
  if (left.empty()) return;
  const bool wanted =
      AskUser(nullptr, {sTakeOverTitle.str(), Format(sTakeOver.Text, {labels})}).value_or(false);
  for (const auto& path : left) refused.erase(path);
  if (wanted) return refused.merge(TryLock(context, left, comment, ForeignLocks::Steal));
  for (const auto& path : left) refused.emplace(path, Failure(scc::SCC_E_ALREADYCHECKEDOUT, sLeftOver));
}

/// The reason for a refused lock, which depends on its owner.
Failure ToLockFailure(const Survey& survey, const std::string& path, const Failure& refusal) {
  if (refusal.Has(SVN_ERR_FS_PATH_ALREADY_LOCKED)) {
    const FileStatus status = survey.StatusOf(path);
    if ((status.Bits & scc::SCC_STATUS_OUTBYUSER) != 0)
      return Failure(scc::SCC_E_ALREADYCHECKEDOUT, sOutElsewhere);
    if (!status.LockOwner.empty())
      return Failure(scc::SCC_E_FILEOUTEXCLUSIVE, Format(sOutBy.Text, {status.LockOwner}));
  }
  if (refusal.Has(SVN_ERR_FS_NOT_FOUND)) return Failure(scc::SCC_E_FILENOTCONTROLLED, sDeletedInRepository);
  return refusal;
}

/// Whether a lock was refused because the file is checked out here already, which is no failure: a client that checks out a
/// form with its unit names the form twice.
bool IsOutHere(ProviderContext& context, const Survey& survey, const std::string& path,
               const Failure& refusal) {
  if (!refusal.Has(SVN_ERR_FS_PATH_ALREADY_LOCKED)) return false;
  if ((survey.StatusOf(path).Bits & scc::SCC_STATUS_CHECKEDOUT) == 0) return false;
  context.Out().Info(Format(sAlreadyOut, {context.Label(path)}));
  return true;
}

/// Replaces the reasons of locks that were refused because there is one: asks the repository once for all.
void ExplainRefusals(ProviderContext& context, const std::string& comment,
                     std::map<std::string, Failure>& refused) {
  std::vector<std::string> locked;
  for (const auto& [path, refusal] : refused)
    if (refusal.Has(SVN_ERR_FS_PATH_ALREADY_LOCKED)) locked.push_back(path);
  const Survey survey(context, locked);
  if (survey.Result() < 0) return;
  OfferTakeOver(context, comment, survey, refused);
  std::erase_if(refused,
                [&](const auto& entry) { return IsOutHere(context, survey, entry.first, entry.second); });
  for (auto& [path, refusal] : refused) refusal = ToLockFailure(survey, path, refusal);
}

/// Updates an outdated file.  Throws Failure for a deleted file, which an update would remove.
void UpdateOutdated(ProviderContext& context, const std::string& path) {
  if ((FetchStatus(context, path).Bits & scc::SCC_STATUS_DELETED) != 0)
    throw Failure(scc::SCC_E_FILENOTCONTROLLED, sDeletedInRepository);
  Update(context, {path});
  const LocalStatus local = ReadLocalStatus(context, path);
  if (local.IsConflicted()) Require(StateOf(local), Command::CheckOut);
}

/// Fetches a file over an obstructing one with the same contents.  Throws Failure if they differ.
void Adopt(ProviderContext& context, const std::string& path) {
  const char* inside = svn_dirent_skip_ancestor(context.CurrentProject().Folder.c_str(), path.c_str());
  const Contents theirs = FetchContents(context.Svn(), UrlOf(context.CurrentProject().Url, inside), Newest());
  if (theirs.Bytes != ReadLocalContents(path).Bytes) {
    const Rule rule = RuleFor(FileState::InTheWay, Command::CheckOut);
    throw Failure(rule.answer, rule.reason);
  }
  const MovedObstruction room(context, path);
  Update(context, {path});
}

/// Contacts the repository about a file that is not in the working copy.
FileState StateFor(ProviderContext& context, const std::string& path, const LocalStatus& local) {
  const FileState state = StateOf(local);
  const bool unknown = state == FileState::Nowhere || state == FileState::Loose;
  return unknown ? StateOf(context, path, FetchStatus(context, path)) : state;
}

/// Brings a file into a state in which it can be locked; false after a failure, which it records.
bool Prepare(ProviderContext& context, const std::string& path, Outcome& outcome) {
  return outcome.Try(path, [&] {
    const LocalStatus local = ReadLocalStatus(context, path);
    if (local.IsFolder) throw Failure(scc::SCC_E_TYPENOTSUPPORTED, sNotAFile);
    const FileState state = StateFor(context, path, local);
    const bool givenUp =
        RuleFor(state, Command::CheckOut).step == Step::Offer && AskToAcceptRepository(context, {path});
    const Step step = givenUp ? Step::AcceptRepository : Require(state, Command::CheckOut);
    switch (step) {
      case Step::AcceptRepository:
        AcceptRepository(context, path);
        Update(context, {path});
        break;
      case Step::Update:
        Update(context, {path});
        break;
      case Step::Adopt:
        Adopt(context, path);
        break;
      case Step::Resolve:
        MarkResolved(context, path);
        break;
      default:
        break;
    }
    if (step != Step::Proceed && !ReadLocalStatus(context, path).IsControlled())
      throw Failure(scc::SCC_E_FILENOTCONTROLLED, sNotControlled);
  });
}

/// How to undo the check-out of the file; Nothing for a file of a batch that is not checked out.  Throws Failure.
Step PrepareUndo(ProviderContext& context, const std::string& path, bool isBatch) {
  const LocalStatus local = ReadLocalStatus(context, path);
  FileState state = StateFor(context, path, local);
  if (state == FileState::Edited && !local.HasLock)
    state = StateOf(context, path, FetchStatus(context, path));
  const Step step = Require(state, Command::Undo);
  if (step == Step::AcceptRepository || local.HasLock) return step;
  if (isBatch && !local.Modified) return Step::Nothing;
  throw Failure(scc::SCC_E_NOTCHECKEDOUT, sNotCheckedOut);
}

}  // namespace

std::map<std::string, Failure> LockAvailable(ProviderContext& context, const std::vector<std::string>& paths,
                                             const std::string& comment, ForeignLocks others) {
  auto refused = TryLock(context, paths, comment, others);
  std::vector<std::string> updated;
  for (auto& [path, refusal] : refused) {
    if (refusal.Result() != scc::SCC_E_CHECKINCONFLICT) continue;
    try {
      UpdateOutdated(context, path);
      updated.push_back(path);
    } catch (const Failure& failure) {
      refusal = failure;
    }
  }
  for (const auto& path : updated) refused.erase(path);
  refused.merge(TryLock(context, updated, comment, others));
  ExplainRefusals(context, comment, refused);
  for (const auto& path : paths)
    if (!refused.contains(path)) MakeWritable(path);
  return refused;
}

void Lock(ProviderContext& context, const std::vector<std::string>& paths, const std::string& comment,
          ForeignLocks others, Outcome& outcome) {
  for (const auto& [path, refusal] : LockAvailable(context, paths, comment, others))
    outcome.Fail(path, refusal);
}

void Unlock(ProviderContext& context, const std::vector<std::string>& paths, Outcome& outcome) {
  if (paths.empty()) return;
  const Pool pool;
  context.DrainRefusals();
  context.Svn().Run(
      svn_client_unlock(ToArray(paths, pool), /*break_lock*/ FALSE, context.ClientContext(), pool));
  for (const auto& [path, refusal] : context.DrainRefusals()) {
    // Another user broke the lock: the file is unlocked.
    if (refusal.Has(SVN_ERR_FS_NO_SUCH_LOCK) || refusal.Has(SVN_ERR_FS_BAD_LOCK_TOKEN) ||
        refusal.Has(SVN_ERR_FS_NOT_FOUND))
      ReportBrokenLock(context, path);
    else
      outcome.Fail(path, refusal);
  }
}

void FailAll(ProviderContext& context, const std::vector<std::string>& paths, const Failure& failure,
             Outcome& outcome) {
  if (paths.size() == 1 || !failure.MeansOthersLock()) {
    for (const auto& path : paths) outcome.Fail(path, failure);
    return;
  }
  const Survey survey(context, paths);
  for (const auto& path : paths) {
    const FileStatus status = survey.StatusOf(path);
    const bool isOut = (status.Bits & scc::SCC_STATUS_CHECKEDOUT) != 0;
    const std::string reason = isOut                       ? sOtherRefused.str()
                               : !status.LockOwner.empty() ? Format(sOutBy.Text, {status.LockOwner})
                                                           : failure.what();
    outcome.Fail(path, failure.Result(), reason.c_str());
  }
}

void ReportNotCheckedOut(ProviderContext& context, const std::vector<std::string>& paths, bool othersWereOut,
                         Outcome& outcome) {
  for (const auto& path : paths) {
    if (othersWereOut)
      context.Out().Info(Format(sLeftAsItIs.Text, {context.Label(path)}));
    else
      outcome.Fail(path, scc::SCC_E_NOTCHECKEDOUT, sNotCheckedOut.Text);
  }
}

scc::Long CheckOut(ProviderContext& context, Names names, const std::string& comment,
                   const CommandOptions& options) {
  Outcome outcome(context);
  std::vector<std::string> wanted;
  const auto paths = outcome.PathsOf(names);
  ResolveFoldersAbove(context, paths);
  for (const auto& path : paths)
    if (Prepare(context, path, outcome)) wanted.push_back(path);
  Lock(context, wanted, comment, options.StealLocks ? ForeignLocks::Steal : ForeignLocks::Respect, outcome);
  return outcome.Result();
}

// A client names all files of a module: one that is not checked out is no failure if others are.
scc::Long UndoCheckOut(ProviderContext& context, Names names) {
  Outcome outcome(context);
  std::vector<std::string> undone;
  std::vector<std::string> idle;
  const auto paths = outcome.PathsOf(names);
  for (const auto& path : paths) {
    outcome.Try(path, [&] {
      const bool nothing = PrepareUndo(context, path, paths.size() > 1) == Step::Nothing;
      if (!nothing) AcceptRepository(context, path);
      (nothing ? idle : undone).push_back(path);
    });
  }
  ReportNotCheckedOut(context, idle, !undone.empty(), outcome);
  std::erase_if(undone, [&](const auto& path) { return !ReadLocalStatus(context, path).HasLock; });
  Unlock(context, undone, outcome);
  return outcome.Result();
}

}  // namespace kestrel::svnscc
