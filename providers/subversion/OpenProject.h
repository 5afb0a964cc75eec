// Binding a folder of a repository to a local folder.
#pragma once

#include <string>

#include "Session.h"

namespace svnscc {

enum class IfUnknown { Create, Refuse };

/// What the client stores for a project.  All but LocalFolder and Comment may be empty; opening fills them in.
struct ProjectNames {
  std::string User;
  std::string ProjectName;  // path in the repository
  std::string Repository;   // address of the repository
  std::string LocalFolder;
  std::string Comment;  // for a folder that is made
};

/// Opens the project into `session`, whose output is attached already.  Throws Failure, and the session stays closed.
void OpenProject(Session& session, ProjectNames& names, IfUnknown ifUnknown);

/// Makes the project folder a working copy when it is none; files that are there stay as they are.  Throws Failure when
/// it is a working copy of something else.
void EnsureWorkingCopy(Session& session);

/// The name under which the operating system knows the user.
std::string SystemUser();

}  // namespace svnscc
