// Files that are in the repository and not on disk, for SccAddFromScc.
#pragma once

#include <string>
#include <vector>

#include "subversion/svn/ProviderContext.h"

namespace kestrel::svnscc {

/// The missing files below `folder`, a path inside the project; sorted.  Throws Failure.
std::vector<std::string> MissingFiles(ProviderContext& context, const std::string& folder);

}  // namespace kestrel::svnscc
