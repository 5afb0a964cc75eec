// What is installed with the plug-in: the package, the help, a provider.
#pragma once

#include <string>

namespace kestrel::codeblocks {

/// The path of a file of the installation: beside the libraries that host and packages share.
std::string InstalledFile(const std::string& name);

inline constexpr const char* kHelpFolder = "help";

/// Registers the provider that is installed with the plug-in if the user has none, and points to the help if that
/// fails.
void RegisterProvider();
/// Undoes RegisterProvider.
void UnregisterProvider();

}  // namespace kestrel::codeblocks
