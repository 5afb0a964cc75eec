#include "MissingFiles.h"

#include <svn_dirent_uri.h>

#include "LocalStatus.h"
#include "OpenProject.h"
#include "WindowStrings.h"

namespace svnscc {

std::vector<std::string> MissingFiles(Session& session, const std::string& folder) {
  EnsureWorkingCopy(session);
  const StatusTable& statuses = WalkProject(session);
  if (statuses.Result < 0) throw Failure(statuses.Result, sNotAsked);
  std::vector<std::string> missing;
  for (auto& file : statuses.Files()) {
    const FileStatus status = statuses.Of(file);
    const bool gone = (status.Bits & scc::SCC_STATUS_DELETED) != 0;
    const bool below = svn_dirent_skip_ancestor(folder.c_str(), file.c_str()) != nullptr;
    if (status.NeedsGet && !gone && below && !IsOnDisk(file)) missing.push_back(std::move(file));
  }
  return missing;
}

}  // namespace svnscc
