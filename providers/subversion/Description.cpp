#include "Description.h"

#include <array>

#include "LocalStatus.h"
#include "Repository.h"
#include "Session.h"
#include "SubversionSccStrings.h"
#include "WindowStrings.h"

namespace svnscc {
namespace {

class FactList {
 public:
  /// Leaves out what is not known.
  FactList& Add(const TResString& label, const std::string& value) {
    if (!value.empty()) facts_.emplace_back(label.str(), value);
    return *this;
  }
  FactList& Add(const TResString& label, svn_revnum_t revision) {
    return Add(label, SVN_IS_VALID_REVNUM(revision) ? std::to_string(revision) : std::string());
  }
  FactList& AddNode(const NodeFacts& facts) {
    return Add(sFactKind, facts.IsFolder ? sKindFolder : sKindFile)
        .Add(sFactAddress, ReadableUrl(facts.Url))
        .Add(sFactPath, facts.Path);
  }
  FactList& AddChange(const NodeFacts& facts) {
    return Add(sFactChanged, facts.ChangedRevision)
        .Add(sFactChangedBy, facts.ChangedBy)
        .Add(sFactChangedAt, LocalTime(facts.ChangedAt));
  }
  FactList& AddLock(const LockFacts& lock) {
    return Add(sFactLockOwner, lock.Owner.empty() ? sNotLocked.str() : lock.Owner)
        .Add(sFactLockSince, LocalTime(lock.Since))
        .Add(sFactLockComment, lock.Comment);
  }
  std::vector<std::pair<std::string, std::string>> Take() { return std::move(facts_); }

 private:
  std::vector<std::pair<std::string, std::string>> facts_;
};

struct Word {
  scc::Long bit;
  TResString text;
};
constexpr std::array kWords{
    Word{scc::SCC_STATUS_CHECKEDOUT, sStateOutHere}, Word{scc::SCC_STATUS_OUTOTHER, sStateOutOther},
    Word{scc::SCC_STATUS_MODIFIED, sStateChanged},   Word{scc::SCC_STATUS_MERGED, sStateConflict},
    Word{scc::SCC_STATUS_OUTOFDATE, sStateOld},      Word{scc::SCC_STATUS_DELETED, sStateDeleted},
};

/// Newest facts, or the working copy's with a sentence to the user.
NodeFacts NewestOrLocal(Session& session, const ControlledNode& node) {
  try {
    return FactsOf(session.Svn(), node.Place, Newest());
  } catch (const Failure& failure) {
    if (!node.IsLocal()) throw;
    if (failure.Result() != scc::SCC_E_FILENOTCONTROLLED)
      session.Out().Warning(Format(sStatusFailed.Text, {failure.what()}));
    return LocalFactsOf(session.Svn(), node.Path);
  }
}

scc::Long BitsOf(Session& session, const std::string& path) {
  try {
    return AskStatus(session, path).Bits;
  } catch (const Failure&) {  // told by NewestOrLocal
    const LocalStatus local = AskLocal(session, path);
    return (local.HasLock ? scc::SCC_STATUS_CHECKEDOUT | scc::SCC_STATUS_OUTBYUSER : 0) |
           (local.Modified ? scc::SCC_STATUS_MODIFIED : 0) | scc::SCC_STATUS_CONTROLLED;
  }
}

}  // namespace

std::string StateWords(scc::Long bits, bool onDisk) {
  std::string words = onDisk ? "" : sStateMissing.str();
  const auto add = [&](const TResString& text) { words += (words.empty() ? "" : ", ") + text.str(); };
  for (const Word& word : kWords)
    if ((bits & word.bit) != 0) add(word.text);
  const bool elsewhere = (bits & scc::SCC_STATUS_OUTBYUSER) != 0 && (bits & scc::SCC_STATUS_CHECKEDOUT) == 0;
  if (elsewhere) add(sStateElsewhere);
  return words.empty() ? sStateSame.str() : words;
}

Description Describe(Session& session, const ControlledNode& node) {
  const NodeFacts newest = NewestOrLocal(session, node);
  FactList facts;
  facts.AddNode(newest).Add(sFactLocal, NativeName(node.Path));
  facts.Add(sFactState, StateWords(BitsOf(session, node.Path), IsOnDisk(node.Path)));
  if (node.IsLocal()) facts.Add(sFactRevision, LocalFactsOf(session.Svn(), node.Path).Revision);
  facts.AddChange(newest);
  if (!newest.IsFolder) facts.AddLock(newest.Lock);
  const auto revision = node.IsLocal() ? Pristine() : Newest();
  return {facts.Take(), PropertiesOf(session.Svn(), node.Place, revision)};
}

Description Describe(Client& client, const std::string& url) {
  const NodeFacts newest = FactsOf(client, url, Newest());
  FactList facts;
  facts.AddNode(newest).AddChange(newest);
  if (!newest.IsFolder) facts.AddLock(newest.Lock);
  return {facts.Take(), PropertiesOf(client, url, Newest())};
}

}  // namespace svnscc
