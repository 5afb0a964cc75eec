// Check-out and its undoing: locks.
#include <algorithm>

#include "Commands.h"
#include "LocalStatus.h"
#include "Nodes.h"
#include "Question.h"
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
}

/// Fetches what is not here yet; false, with the failure noted, when there is nothing to lock.
bool Prepare(Session& session, const std::string& path, Outcome& outcome) {
  return outcome.Try(path, [&] {
    if (AskLocal(session, path).State != LocalState::Controlled) Update(session, {path});
    if (!AskLocal(session, path).IsControlled()) throw Failure(scc::SCC_E_FILENOTCONTROLLED, sNotControlled);
  });
}

}  // namespace

void Lock(Session& session, const std::vector<std::string>& paths, const std::string& comment,
          OthersLocks others, Outcome& outcome) {
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

  for (const auto& path : paths) {
    const auto refusal = refused.find(path);
    outcome.Try(path, [&] {
      if (refusal != refused.end() && !IsOutHere(session, path, refusal->second))
        throw Explain(session, path, refusal->second);
      MakeWritable(path);
    });
  }
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
    if (refusal.Has(SVN_ERR_FS_NO_SUCH_LOCK) || refusal.Has(SVN_ERR_FS_BAD_LOCK_TOKEN))
      TellLockGone(session, path);
    else
      outcome.Fail(path, refusal);
  }
}

scc::Long CheckOut(Session& session, Names names, const std::string& comment, const CommandOptions& options) {
  Outcome outcome(session);
  std::vector<std::string> wanted;
  for (const auto& path : outcome.PathsOf(names))
    if (Prepare(session, path, outcome)) wanted.push_back(path);
  Lock(session, wanted, comment, options.StealLocks ? OthersLocks::Steal : OthersLocks::Respect, outcome);
  return outcome.Result();
}

scc::Long UndoCheckOut(Session& session, Names names) {
  Outcome outcome(session);
  std::vector<std::string> wanted;
  for (const auto& path : outcome.PathsOf(names)) {
    outcome.Try(path, [&] {
      const LocalStatus local = AskLocal(session, path);
      if (!local.IsControlled()) throw Failure(scc::SCC_E_FILENOTCONTROLLED, sNotControlled);
      if (!local.HasLock) throw Failure(scc::SCC_E_NOTCHECKEDOUT, sNotCheckedOut);
      wanted.push_back(path);
    });
  }
  if (wanted.empty()) return outcome.Result();
  const Pool pool;
  session.Svn().Run(svn_client_revert4(ToArray(wanted, pool), svn_depth_empty, nullptr, FALSE,
                                       /*metadata_only*/ FALSE,
                                       /*added_keep_local*/ TRUE, session.Context(), pool));
  Unlock(session, wanted, outcome);
  return outcome.Result();
}

}  // namespace svnscc
