// Asking the user which folder of which repository holds the project.
#pragma once

#include <string>

#include "subversion/svn/ProviderContext.h"

namespace kestrel::svnscc {

/// In: what the client proposes; texts may be empty.  Out: what was chosen.
struct ProjectRequest {
  std::string User;
  std::string ProjectName;
  std::string Repository;
  std::string LocalFolder;  // shown, never changed
  bool MayCreate = false;
  bool IsNew = false;  // the folder is made when the project is opened
};

/// Shows the dialog.  SCC_OK, SCC_I_OPERATIONCANCELED, or SCC_E_NONSPECIFICERROR when this process shows no windows.
/// User interface thread only.
scc::Long PromptForProject(ProviderContext& context, scc::WindowHandle parent, ProjectRequest& request);

}  // namespace kestrel::svnscc
