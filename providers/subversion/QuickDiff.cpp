#include "Commands.h"
#include "FileDiff.h"
#include "LocalStatus.h"
#include "Nodes.h"

namespace svnscc {
namespace {

bool Differs(Session& session, const std::string& path, const DiffOptions& options) {
  if (!options.IgnoreCase && !options.IgnoreSpace) return true;
  const Contents pristine = ContentsOf(session.Svn(), path, Pristine());
  const Contents local = ContentsOnDisk(path);
  return pristine.IsBinary || local.IsBinary || !FileDiff(pristine.Bytes, local.Bytes, options).Same();
}

}  // namespace

// Asked for every row of a file list: no messages, no server.
scc::Long QuickDiff(Session& session, const char* name, scc::Long flags) {
  const std::string path = session.InsidePath(name);
  if (path.empty()) return scc::SCC_E_FILENOTCONTROLLED;
  const LocalStatus local = AskLocal(session, path);
  switch (local.State) {
    case LocalState::Absent:
    case LocalState::Missing:
      return scc::SCC_E_FILENOTEXIST;
    case LocalState::Controlled:
      return local.Differs && Differs(session, path, ToDiffOptions(flags)) ? scc::SCC_I_FILEDIFFERS
                                                                           : scc::SCC_OK;
    case LocalState::Added:
      return scc::SCC_E_FILENOTCONTROLLED;
    case LocalState::Unversioned:
      break;
  }
  // A file of the repository's name that was never fetched: whatever it is, it is not the repository's.
  return session.LastStatuses().Of(path).Bits != 0 ? scc::SCC_I_FILEDIFFERS : scc::SCC_E_FILENOTCONTROLLED;
}

}  // namespace svnscc
