#include "subversion/commands/GetRevision.h"

#include "subversion/commands/CommandStrings.h"
#include "subversion/commands/Commands.h"
#include "subversion/commands/TemporaryRename.h"
#include "subversion/svn/LocalStatus.h"
#include "subversion/svn/NodeInfo.h"
#include "subversion/svn/ProviderContext.h"
#include "system/System.h"

namespace kestrel::svnscc {

GotRevision GetRevision(ProviderContext& context, const std::string& path, svn_revnum_t revision) {
  const LocalStatus local = ReadLocalStatus(context, path);
  if (!local.HasLock) RequireSameName(context, {path, path}, revision);
  GotRevision got;
  if (local.Differs) got.Copy = SaveCopy(context, path);
  if (local.HasLock) {
    WriteFileAtomically(path, FetchContents(context.Svn(), path, Numbered(revision)).Bytes);
  } else {
    if (local.Differs) Revert(context, {path});
    UpdateTo(context, {path}, Numbered(revision));
  }
  context.Out().Info(Format(sGotRevision.Text, {static_cast<long long>(revision), context.Label(path)}));
  return got;
}

}  // namespace kestrel::svnscc
