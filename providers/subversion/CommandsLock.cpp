// Check-out and its undoing: locks.
#include <svn_dirent_uri.h>

#include <algorithm>

#include "CommandTable.h"
#include "Commands.h"
#include "LocalStatus.h"
#include "Nodes.h"
#include "Question.h"
#include "Repository.h"
#include "SetAside.h"
#include "SubversionSccStrings.h"

namespace svnscc {
namespace {

/// Tries to lock all of `paths`; who was refused, and why.
std::map<std::string, Failure> TryLock(Session& session, const std::vector<std::string>& paths,
                                       const std::string& comment, OthersLocks others) {
  const Pool pool;
  session.TakeRefusals();
  if (paths.empty()) return {};
  std::vector<std::string> settled;  // by this call; a refused one may be left over from an earlier check-out
  std::copy_if(paths.begin(), paths.end(), std::back_inserter(settled),
               [&](const std::string& path) { return !session.Journal().Has(path); });
  session.Journal().Add(paths);
  session.Svn().Run(svn_client_lock(ToArray(paths, pool), comment.c_str(),
                                    /*steal_lock*/ others == OthersLocks::Steal, session.Context(), pool));
  auto refused = session.TakeRefusals();
  std::copy_if(paths.begin(), paths.end(), std::back_inserter(settled),
               [&](const std::string& path) { return !refused.contains(path); });
  session.Journal().Remove(settled);
  return refused;
}

/// Asks about refused locks that an interrupted check-out here left, and takes them over.
void TakeOver(Session& session, const std::string& comment, std::map<std::string, Failure>& refused) {
  std::vector<std::string> left;
  std::string labels;
  for (const auto& [path, refusal] : refused) {
    if (!refusal.Has(SVN_ERR_FS_PATH_ALREADY_LOCKED) || !session.Journal().Has(path)) continue;
    if (!AskStatus(session, path).LeftOver) continue;
    left.push_back(path);
    labels += (labels.empty() ? "" : "\n") + session.Label(path);
  }
  if (left.empty()) return;
  const bool wanted =
      AskUser(nullptr, {sTakeOverTitle.str(), Format(sTakeOver.Text, {labels})}).value_or(false);
  for (const auto& path : left) refused.erase(path);
  if (wanted) return refused.merge(TryLock(session, left, comment, OthersLocks::Steal));
  for (const auto& path : left) refused.emplace(path, Failure(scc::SCC_E_ALREADYCHECKEDOUT, sLeftOver));
}

/// A refused lock in the words of the API: whose is it?
Failure Explain(Session& session, const std::string& path, const Failure& refusal) {
  if (refusal.Has(SVN_ERR_FS_PATH_ALREADY_LOCKED)) {
    if ((AskStatus(session, path).Bits & scc::SCC_STATUS_OUTBYUSER) != 0)
      return Failure(scc::SCC_E_ALREADYCHECKEDOUT, sOutElsewhere);
  }
  if (refusal.Has(SVN_ERR_FS_NOT_FOUND)) return Failure(scc::SCC_E_FILENOTCONTROLLED, sDeletedInRepository);
  return refusal;
}

/// Whether it was refused because it is out here already.  That is what the user wants, so it is no failure: clients
/// name a form twice when they check it out together with its unit.
bool IsOutHere(Session& session, const std::string& path, const Failure& refusal) {
  if (!refusal.Has(SVN_ERR_FS_PATH_ALREADY_LOCKED)) return false;
  if ((AskStatus(session, path).Bits & scc::SCC_STATUS_CHECKEDOUT) == 0) return false;
  session.Out().Info(Format(sAlreadyOut, {session.Label(path)}));
  return true;
}

/// Brings an old file up to date.  One that was deleted in the repository stays: an update would take it away.
void Renew(Session& session, const std::string& path) {
  if ((AskStatus(session, path).Bits & scc::SCC_STATUS_DELETED) != 0)
    throw Failure(scc::SCC_E_FILENOTCONTROLLED, sDeletedInRepository);
  Update(session, {path});
  const LocalStatus local = AskLocal(session, path);
  if (local.IsConflicted()) Require(StateOf(local), Command::CheckOut);
}

/// Fetches the repository's version of a file that stands in its way, if both are the same.
void Adopt(Session& session, const std::string& path) {
  const char* inside = svn_dirent_skip_ancestor(session.CurrentProject().Folder.c_str(), path.c_str());
  const Contents theirs = ContentsOf(session.Svn(), UrlOf(session.CurrentProject().Url, inside), Newest());
  if (theirs.Bytes != ContentsOnDisk(path).Bytes) {
    const Rule rule = RuleFor(FileState::InTheWay, Command::CheckOut);
    throw Failure(rule.answer, rule.reason);
  }
  const MadeRoom room(session, path);
  Update(session, {path});
}

/// What the working copy does not have the repository is asked about.
FileState StateFor(Session& session, const std::string& path, const LocalStatus& local) {
  const FileState state = StateOf(local);
  const bool unknown = state == FileState::Nowhere || state == FileState::Loose;
  return unknown ? StateOf(session, path, AskStatus(session, path)) : state;
}

/// Fetches what is not here yet; false, with the failure noted, when there is nothing to lock.
bool Prepare(Session& session, const std::string& path, Outcome& outcome) {
  return outcome.Try(path, [&] {
    const LocalStatus local = AskLocal(session, path);
    if (local.IsFolder) throw Failure(scc::SCC_E_TYPENOTSUPPORTED, sNotAFile);
    const FileState state = StateFor(session, path, local);
    const bool givenUp =
        RuleFor(state, Command::CheckOut).step == Step::Offer && AskToGiveUp(session, {path});
    switch (givenUp ? Step::GiveUp : Require(state, Command::CheckOut)) {
      case Step::GiveUp:
        GiveUp(session, path);
        Update(session, {path});
        break;
      case Step::Update:
        Update(session, {path});
        break;
      case Step::Adopt:
        Adopt(session, path);
        break;
      case Step::Settle:
        Settle(session, path);
        break;
      default:
        break;
    }
    if (!AskLocal(session, path).IsControlled()) throw Failure(scc::SCC_E_FILENOTCONTROLLED, sNotControlled);
  });
}

/// Whether the check-out of the file can be undone, and how.  Nothing, when a file of a batch was never checked out.
Step PrepareUndo(Session& session, const std::string& path, bool isBatch) {
  const LocalStatus local = AskLocal(session, path);
  FileState state = StateFor(session, path, local);
  if (state == FileState::Edited && !local.HasLock) state = StateOf(session, path, AskStatus(session, path));
  const Step step = Require(state, Command::Undo);
  if (step == Step::GiveUp || local.HasLock) return step;
  if (isBatch && !local.Modified) return Step::Nothing;
  throw Failure(scc::SCC_E_NOTCHECKEDOUT, sNotCheckedOut);
}

}  // namespace

std::map<std::string, Failure> LockWhatCanBe(Session& session, const std::vector<std::string>& paths,
                                             const std::string& comment, OthersLocks others) {
  auto refused = TryLock(session, paths, comment, others);
  std::vector<std::string> updated;
  for (auto& [path, refusal] : refused) {
    if (refusal.Result() != scc::SCC_E_CHECKINCONFLICT) continue;
    try {
      Renew(session, path);
      updated.push_back(path);
    } catch (const Failure& failure) {
      refusal = failure;
    }
  }
  for (const auto& path : updated) refused.erase(path);
  refused.merge(TryLock(session, updated, comment, others));
  TakeOver(session, comment, refused);
  std::erase_if(refused, [&](const auto& entry) { return IsOutHere(session, entry.first, entry.second); });
  for (auto& [path, refusal] : refused) refusal = Explain(session, path, refusal);
  for (const auto& path : paths)
    if (!refused.contains(path)) MakeWritable(path);
  return refused;
}

void Lock(Session& session, const std::vector<std::string>& paths, const std::string& comment,
          OthersLocks others, Outcome& outcome) {
  for (const auto& [path, refusal] : LockWhatCanBe(session, paths, comment, others))
    outcome.Fail(path, refusal);
}

void TellLockGone(Session& session, const std::string& path) {
  std::string owner;
  try {
    owner = FactsOf(session.Svn(), path, Newest()).Lock.Owner;
  } catch (const Failure&) {  // told without
  }
  const auto& text = owner.empty() ? sLockGone : sLockTaken;
  session.Out().Warning(Format(text.Text, {session.Label(path), owner}));
}

std::string WhyLocked(Session& session, const std::string& path, const Failure& failure) {
  try {
    const std::string owner = FactsOf(session.Svn(), path, Newest()).Lock.Owner;
    if (owner.empty()) return sLockLost;
    return owner == session.Svn().User() ? sOutElsewhere.str() : Format(sOutBy.Text, {owner});
  } catch (const Failure&) {
    return failure.what();
  }
}

void Unlock(Session& session, const std::vector<std::string>& paths, Outcome& outcome) {
  if (paths.empty()) return;
  const Pool pool;
  session.TakeRefusals();
  session.Svn().Run(svn_client_unlock(ToArray(paths, pool), /*break_lock*/ FALSE, session.Context(), pool));
  for (const auto& [path, refusal] : session.TakeRefusals()) {
    // Someone broke the lock: what was wanted has happened.
    if (refusal.Has(SVN_ERR_FS_NO_SUCH_LOCK) || refusal.Has(SVN_ERR_FS_BAD_LOCK_TOKEN) ||
        refusal.Has(SVN_ERR_FS_NOT_FOUND))
      TellLockGone(session, path);
    else
      outcome.Fail(path, refusal);
  }
}

void TellIdle(Session& session, const std::vector<std::string>& paths, bool othersWereOut, Outcome& outcome) {
  for (const auto& path : paths) {
    if (othersWereOut)
      session.Out().Info(Format(sLeftAsItIs.Text, {session.Label(path)}));
    else
      outcome.Fail(path, scc::SCC_E_NOTCHECKEDOUT, sNotCheckedOut.Text);
  }
}

scc::Long CheckOut(Session& session, Names names, const std::string& comment, const CommandOptions& options) {
  Outcome outcome(session);
  std::vector<std::string> wanted;
  const auto paths = outcome.PathsOf(names);
  SettleFoldersAbove(session, paths);
  for (const auto& path : paths)
    if (Prepare(session, path, outcome)) wanted.push_back(path);
  Lock(session, wanted, comment, options.StealLocks ? OthersLocks::Steal : OthersLocks::Respect, outcome);
  return outcome.Result();
}

// A client names the files that belong together, out or not: what was not out is no failure beside what was.
scc::Long UndoCheckOut(Session& session, Names names) {
  Outcome outcome(session);
  std::vector<std::string> undone;
  std::vector<std::string> idle;
  const auto paths = outcome.PathsOf(names);
  for (const auto& path : paths) {
    outcome.Try(path, [&] {
      const bool nothing = PrepareUndo(session, path, paths.size() > 1) == Step::Nothing;
      if (!nothing) GiveUp(session, path);
      (nothing ? idle : undone).push_back(path);
    });
  }
  TellIdle(session, idle, !undone.empty(), outcome);
  std::erase_if(undone, [&](const auto& path) { return !AskLocal(session, path).HasLock; });
  Unlock(session, undone, outcome);
  return outcome.Result();
}

}  // namespace svnscc
