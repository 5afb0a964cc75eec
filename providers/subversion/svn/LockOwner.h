// Locks that are not, or no longer, held by the working copy.
#pragma once

#include <string>

namespace kestrel::svnscc {

class Failure;
class ProviderContext;

/// Warns that the working copy's lock on `path` was broken, naming the new owner if there is one.
void ReportBrokenLock(ProviderContext& context, const std::string& path);
/// Why a lock refused an operation on `path`: who holds it.  The text of `failure` if the repository cannot be contacted.
std::string ExplainForeignLock(ProviderContext& context, const std::string& path, const Failure& failure);

}  // namespace kestrel::svnscc
