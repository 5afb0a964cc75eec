// Runs the dialog for choosing a project.
#include "common/windows/WindowTools.h"
#include "subversion/project/UsedRepositories.h"
#include "subversion/windows/ProjectDialog.h"
#include "subversion/windows/ProviderWindowStrings.h"

namespace kestrel::svnscc {
scc::Long PromptForProject(ProviderContext& context, scc::WindowHandle parent, ProjectRequest& request) {
  if (!CanShowWindows()) {
    context.Out().Error(sNoWindows);
    return scc::SCC_E_NONSPECIFICERROR;
  }
  ProjectChoice choice(request);
  ProjectDialog dialog(ParentFor(parent), choice);
  const int answer = dialog.ShowModal();
  request.User = choice.User();
  if (answer != wxID_OK || !choice.CanAccept()) return scc::SCC_I_OPERATIONCANCELED;
  request = choice.Result();
  MarkProjectUsed(request.Repository, request.ProjectName);
  return scc::SCC_OK;
}

}  // namespace kestrel::svnscc
