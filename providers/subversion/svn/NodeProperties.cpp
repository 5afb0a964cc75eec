#include "subversion/svn/NodeProperties.h"

#include <array>

#include "subversion/svn/LocalStatus.h"
#include "subversion/svn/ProviderContext.h"
#include "subversion/svn/Repository.h"
#include "subversion/svn/SvnStrings.h"

namespace kestrel::svnscc {
namespace {

class FactList {
 public:
  /// Skips an empty value.
  FactList& Add(const TResString& label, const std::string& value) {
    if (!value.empty()) facts_.emplace_back(label.str(), value);
    return *this;
  }
  FactList& Add(const TResString& label, svn_revnum_t revision) {
    return Add(label, SVN_IS_VALID_REVNUM(revision) ? std::to_string(revision) : std::string());
  }
  FactList& AddNode(const NodeInfo& facts) {
    return Add(sFactKind, facts.IsFolder ? sKindFolder : sKindFile)
        .Add(sFactAddress, ReadableUrl(facts.Url))
        .Add(sFactPath, facts.Path);
  }
  FactList& AddChange(const NodeInfo& facts) {
    return Add(sFactChanged, facts.ChangedRevision)
        .Add(sFactChangedBy, facts.ChangedBy)
        .Add(sFactChangedAt, LocalTime(facts.ChangedAt));
  }
  FactList& AddLock(const LockInfo& lock) {
    return Add(sFactLockOwner, lock.Owner.empty() ? sNotLocked.str() : lock.Owner)
        .Add(sFactLockSince, LocalTime(lock.Since))
        .Add(sFactLockComment, lock.Comment);
  }
  NamedTexts Release() { return std::move(facts_); }

 private:
  NamedTexts facts_;
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

/// The newest facts; else the working copy's, with a warning.
NodeInfo NewestOrLocal(ProviderContext& context, const ControlledNode& node) {
  try {
    return FetchNodeInfo(context.Svn(), node.Place, Newest());
  } catch (const Failure& failure) {
    if (!node.IsLocal()) throw;
    if (failure.Result() != scc::SCC_E_FILENOTCONTROLLED)
      context.Out().Warning(Format(sStatusFailed.Text, {failure.what()}));
    return LocalNodeInfo(context.Svn(), node.Path);
  }
}

scc::Long BitsOf(ProviderContext& context, const std::string& path) {
  try {
    return FetchStatus(context, path).Bits;
  } catch (const Failure&) {  // NewestOrLocal has reported it
    const LocalStatus local = ReadLocalStatus(context, path);
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

NodeProperties DescribeNode(ProviderContext& context, const ControlledNode& node) {
  const NodeInfo newest = NewestOrLocal(context, node);
  FactList facts;
  facts.AddNode(newest).Add(sFactLocal, NativeName(node.Path));
  facts.Add(sFactState, StateWords(BitsOf(context, node.Path), IsOnDisk(node.Path)));
  if (node.IsLocal()) facts.Add(sFactRevision, LocalNodeInfo(context.Svn(), node.Path).Revision);
  facts.AddChange(newest);
  if (!newest.IsFolder) facts.AddLock(newest.Lock);
  const auto revision = node.IsLocal() ? Pristine() : Newest();
  return {facts.Release(), FetchProperties(context.Svn(), node.Place, revision)};
}

NodeProperties DescribeNode(Client& client, const std::string& url) {
  const NodeInfo newest = FetchNodeInfo(client, url, Newest());
  FactList facts;
  facts.AddNode(newest).AddChange(newest);
  if (!newest.IsFolder) facts.AddLock(newest.Lock);
  return {facts.Release(), FetchProperties(client, url, Newest())};
}

}  // namespace kestrel::svnscc
