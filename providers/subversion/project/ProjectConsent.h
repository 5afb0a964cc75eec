// Asking before a project's mapping is followed: it may come from somebody else.
#pragma once

#include "subversion/project/OpenProject.h"

namespace kestrel::svnscc {

/// Makes sure that the user agreed to use the repository at `root` for `project`.  Throws Failure, before anything is
/// contacted, when the user did not, or cannot be asked.
void RequireConsent(const std::string& root, const Project& project, const ProjectNames& names,
                    const OpenMode& mode);
/// The same for making the project's folder in the repository.
void RequireFolderConsent(const std::string& root, const Project& project, const ProjectNames& names,
                          const OpenMode& mode);

}  // namespace kestrel::svnscc
