// Lets the user choose the repository folder of a project.
#pragma once

#include <string>

#include "subversion/svn/ProviderContext.h"

namespace kestrel::svnscc {

/// In: the client's proposal, whose texts may be empty.  Out: the choice.
struct ProjectRequest {
  std::string User;
  std::string ProjectName;
  std::string Repository;
  std::string LocalFolder;  // for display
  bool MayCreate = false;
  bool IsNew = false;  // opening the project creates the folder
};

/// Shows the dialog.  Returns SCC_OK, SCC_I_OPERATIONCANCELED, or SCC_E_NONSPECIFICERROR if this process shows no windows.
/// User interface thread only.
scc::Long PromptForProject(ProviderContext& context, scc::WindowHandle parent, ProjectRequest& request);

}  // namespace kestrel::svnscc
