// The repositories and project folders that this user agreed to use on this computer.  The author of a project's mapping
// file must not be able to make the provider connect, run hooks or commit without consent.
#pragma once

#include <string>

namespace kestrel::svnscc {

/// Whether the user agreed to `url`: the canonical URL of a repository, or of a project folder to be created.
bool IsUsed(const std::string& url);
/// Stores the consent; ignores a failure, after which the user is asked again.
void MarkUsed(const std::string& url);

/// Stores the consent for a repository and for creating the folder `projectName` in it, both as a client stores them.
/// Ignores what is no address or no path.
void MarkProjectUsed(const std::string& address, const std::string& projectName);

}  // namespace kestrel::svnscc
