// Files that the repository has and this computer does not: what SccAddFromScc offers.
#pragma once

#include <string>
#include <vector>

#include "subversion/svn/ProviderContext.h"

namespace kestrel::svnscc {

/// Sorted.  `folder` is a path inside the project; only what is below it counts.  Throws Failure when the repository
/// cannot be asked.
std::vector<std::string> MissingFiles(ProviderContext& context, const std::string& folder);

}  // namespace kestrel::svnscc
