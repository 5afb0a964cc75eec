#include "wizards/WxExpertUiWithWizards.h"

#include "wizards/CommitBrowser.h"
#include "wizards/PlaceProjectWizard.h"
#include "wizards/PullProjectWizard.h"

namespace kestrel::addin {

void TWxExpertUiWithWizards::ShowCommitBrowser(TCommandContext& context) {
  TCommitBrowser(context).ShowModal();
}

void TWxExpertUiWithWizards::ShowPlaceProject(TCommandContext& context) {
  TPlaceProjectWizard(context).ShowModal();
}

std::string TWxExpertUiWithWizards::ShowPullProject(TCommandContext& context) {
  TPullProjectWizard form(context);
  form.ShowModal();
  return form.FileToOpen();
}

}  // namespace kestrel::addin
