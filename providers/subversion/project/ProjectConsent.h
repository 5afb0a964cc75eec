// Asks the user before a project's mapping file, which may come from somebody else, makes the provider contact a server.
#pragma once

#include "subversion/project/OpenProject.h"

namespace kestrel::svnscc {

/// Returns if the user has agreed, now or earlier, to use the repository at `root`.  Throws Failure if the user declines or
/// cannot be asked.  Contacts no server.
void RequireConsent(const std::string& root, const Project& project, const ProjectNames& names,
                    const OpenMode& mode);
/// The same for creating the project's folder in the repository.
void RequireFolderConsent(const std::string& root, const Project& project, const ProjectNames& names,
                          const OpenMode& mode);

}  // namespace kestrel::svnscc
