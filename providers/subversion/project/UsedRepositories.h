// The repositories, and the project folders in them, that this user agreed to use on this computer.  Whoever writes a
// project's mapping file must not be able to make the provider connect, run hooks or commit unasked.
#pragma once

#include <string>

namespace kestrel::svnscc {

/// Whether the user agreed to `url`, a repository or a project folder to be made, as libsvn spells addresses.
bool IsUsed(const std::string& url);
/// Stores that the user agreed.  What cannot be stored is asked again next time.
void MarkUsed(const std::string& url);

/// Marks the repository at `address` and the folder `projectName` in it as chosen by the user, to be made if need be;
/// both as a client stores them.  Does nothing when they are no address and no path.
void MarkProjectUsed(const std::string& address, const std::string& projectName);

}  // namespace kestrel::svnscc
