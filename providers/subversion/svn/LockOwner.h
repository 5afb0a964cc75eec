// Who holds a lock that the working copy does not have, or has no longer.
#pragma once

#include <string>

namespace kestrel::svnscc {

class Failure;
class ProviderContext;

/// Tells the user that the working copy's lock on `path` is gone from the repository, and who has it instead.
void ReportBrokenLock(ProviderContext& context, const std::string& path);
/// Why a file that the repository holds locked otherwise was refused: who has it.  `failure` when that cannot be asked.
std::string ExplainForeignLock(ProviderContext& context, const std::string& path, const Failure& failure);

}  // namespace kestrel::svnscc
