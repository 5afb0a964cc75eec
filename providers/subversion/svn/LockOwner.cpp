#include "subversion/svn/LockOwner.h"

#include "subversion/svn/NodeInfo.h"
#include "subversion/svn/ProviderContext.h"
#include "subversion/svn/SvnStrings.h"

namespace kestrel::svnscc {

void ReportBrokenLock(ProviderContext& context, const std::string& path) {
  std::string owner;
  try {
    owner = FetchNodeInfo(context.Svn(), path, Newest()).Lock.Owner;
  } catch (const Failure&) {  // reported without an owner
  }
  const auto& text = owner.empty() ? sLockGone : sLockTaken;
  context.Out().Warning(Format(text.Text, {context.Label(path), owner}));
}

std::string ExplainForeignLock(ProviderContext& context, const std::string& path, const Failure& failure) {
  try {
    const std::string owner = FetchNodeInfo(context.Svn(), path, Newest()).Lock.Owner;
    if (owner.empty()) return sLockLost;
    return owner == context.Svn().User() ? sOutElsewhere.str() : Format(sOutBy.Text, {owner});
  } catch (const Failure&) {
    return failure.what();
  }
}

}  // namespace kestrel::svnscc
