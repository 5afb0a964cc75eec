// Binding a folder of a repository to a local folder.
#pragma once

#include <string>

#include "subversion/svn/ProviderContext.h"

namespace kestrel::svnscc {

/// Flags and window of an open call.
struct OpenMode {
  bool MayCreate = false;  ///< create the project's folder in the repository if it is missing
  bool Silent = false;     ///< ask the user nothing
  scc::WindowHandle Parent = nullptr;
};

/// What a client stores for a project.  All but LocalFolder and Comment may be empty; OpenProject() fills them in.
struct ProjectNames {
  std::string User;
  std::string ProjectName;  // path in the repository
  std::string Repository;   // address of the repository
  std::string LocalFolder;
  std::string Comment;  // for the commit that creates the folder
};

/// Opens the project in `context`, whose output is attached already.  Asks the user before it contacts a repository that
/// the user has not used before.  Throws Failure and leaves the context closed.
void OpenProject(ProviderContext& context, ProjectNames& names, const OpenMode& mode);

/// Makes the project folder a working copy if it is none; keeps the files in it.  Throws Failure if it is a working copy
/// of another URL.
void EnsureWorkingCopy(ProviderContext& context);

/// The user's name in the operating system.
std::string SystemUser();

}  // namespace kestrel::svnscc
