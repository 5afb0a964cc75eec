#include "Commands.h"
#include "LocalStatus.h"

namespace svnscc {

// Asked for every row of a file list: no messages, no server.
scc::Long QuickDiff(Session& session, const char* name) {
  const std::string path = session.InsidePath(name);
  if (path.empty()) return scc::SCC_E_FILENOTCONTROLLED;
  const LocalStatus local = AskLocal(session, path);
  switch (local.State) {
    case LocalState::Absent:
    case LocalState::Missing:
      return scc::SCC_E_FILENOTEXIST;
    case LocalState::Controlled:
      return local.Differs ? scc::SCC_I_FILEDIFFERS : scc::SCC_OK;
    case LocalState::Added:
      return scc::SCC_E_FILENOTCONTROLLED;
    case LocalState::Unversioned:
      break;
  }
  // A file of the repository's name that was never fetched: whatever it is, it is not the repository's.
  return session.LastStatuses().Of(path).Bits != 0 ? scc::SCC_I_FILEDIFFERS : scc::SCC_E_FILENOTCONTROLLED;
}

}  // namespace svnscc
