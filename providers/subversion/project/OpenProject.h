// Binding a folder of a repository to a local folder.
#pragma once

#include <string>

#include "subversion/svn/ProviderContext.h"

namespace kestrel::svnscc {

/// How a client opens a project.
struct OpenMode {
  bool MayCreate = false;  ///< the project's folder may be made in the repository
  bool Silent = false;     ///< the user must not be asked anything
  scc::WindowHandle Parent = nullptr;
};

/// What the client stores for a project.  All but LocalFolder and Comment may be empty; opening fills them in.
struct ProjectNames {
  std::string User;
  std::string ProjectName;  // path in the repository
  std::string Repository;   // address of the repository
  std::string LocalFolder;
  std::string Comment;  // for a folder that is made
};

/// Opens the project into `context`, whose output is attached already.  A repository that this user has not used before
/// is asked about first.  Throws Failure, and the context stays closed.
void OpenProject(ProviderContext& context, ProjectNames& names, const OpenMode& mode);

/// Makes the project folder a working copy when it is none; files that are there stay as they are.  Throws Failure when
/// it is a working copy of something else.
void EnsureWorkingCopy(ProviderContext& context);

/// The name under which the operating system knows the user.
std::string SystemUser();

}  // namespace kestrel::svnscc
