#include "common/text/FileDiff.h"
#include "subversion/commands/Commands.h"
#include "subversion/svn/CommonLines.h"
#include "subversion/svn/LocalStatus.h"
#include "subversion/svn/NodeInfo.h"

namespace kestrel::svnscc {
namespace {

bool Differs(ProviderContext& context, const std::string& path, const DiffOptions& options) {
  if (!options.IgnoreCase && !options.IgnoreSpace) return true;
  const Contents pristine = FetchContents(context.Svn(), path, Pristine());
  const Contents local = ReadLocalContents(path);
  return pristine.IsBinary || local.IsBinary ||
         !FileDiff(pristine.Bytes, local.Bytes, options, MatchCommonLines).Same();
}

}  // namespace

// Called for every row of a file list: shows no messages, contacts no server.
scc::Long QuickDiff(ProviderContext& context, const char* name, scc::Long flags) {
  const std::string path = context.InsidePath(name);
  if (path.empty()) return scc::SCC_E_FILENOTCONTROLLED;
  const LocalStatus local = ReadLocalStatus(context, path);
  switch (local.State) {
    case LocalState::Absent:
    case LocalState::Missing:
      return scc::SCC_E_FILENOTEXIST;
    case LocalState::Controlled:
      return local.Differs && Differs(context, path, ToDiffOptions(flags)) ? scc::SCC_I_FILEDIFFERS
                                                                           : scc::SCC_OK;
    case LocalState::Added:
      return scc::SCC_E_FILENOTCONTROLLED;
    case LocalState::Unversioned:
      break;
  }
  // It obstructs a file of the repository, or is local only.
  return context.LastStatuses().Of(path).Bits != 0 ? scc::SCC_I_FILEDIFFERS : scc::SCC_E_FILENOTCONTROLLED;
}

}  // namespace kestrel::svnscc
