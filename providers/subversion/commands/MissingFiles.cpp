#include "subversion/commands/MissingFiles.h"

#include <svn_dirent_uri.h>

#include "subversion/project/OpenProject.h"
#include "subversion/svn/LocalStatus.h"
#include "subversion/svn/SvnStrings.h"

namespace kestrel::svnscc {

std::vector<std::string> MissingFiles(ProviderContext& context, const std::string& folder) {
  EnsureWorkingCopy(context);
  const StatusTable& statuses = WalkProject(context);
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

}  // namespace kestrel::svnscc
