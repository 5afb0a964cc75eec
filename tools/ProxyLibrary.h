// The copies of the isolating library, one for each provider that is registered to run in a process of its own.
#pragma once

#include <string>

namespace kestrel {

/// The program that runs an isolated provider, and the one whose windows macros can operate; beside the running program.
inline constexpr const char* kProviderHost = "scc-provider-host" PROGRAM_SUFFIX;
inline constexpr const char* kProviderHostPlayer = "scc-provider-host-player" PROGRAM_SUFFIX;

/// False for a library of the other bitness, which can only be isolated.
bool CanLoadDirectly(const std::string& library);
/// Installs or replaces the library that stands for the provider `name` at `path` and runs it in `host`, or for one of the
/// other bitness in the program of that bitness; returns its path.  With `searchPath` the libraries that the provider needs
/// are also searched in PATH (Windows).  Throws std::runtime_error with a sentence for the user.
std::string InstallProxyLibrary(const std::string& name, const std::string& path, bool searchPath = false,
                                const std::string& host = kProviderHost);
/// Returns the path of the provider that `library` stands for; empty if it is not an isolating library.
std::string ProviderBehindProxy(const std::string& library);
/// Removes the library that InstallProxyLibrary installed for the provider `name`, if there is one.
void RemoveProxyLibrary(const std::string& name);

}  // namespace kestrel
