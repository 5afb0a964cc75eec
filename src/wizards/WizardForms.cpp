#include "wizards/WizardForms.h"

#include "wizards/CommitBrowser.h"
#include "wizards/PlaceProjectWizard.h"
#include "wizards/PullProjectWizard.h"

void TWizardForms::ShowCommitBrowser(TSccExpert& expert) { TCommitBrowser(expert).ShowModal(); }

void TWizardForms::ShowPlaceProject(TSccExpert& expert) { TPlaceProjectWizard(expert).ShowModal(); }

std::string TWizardForms::ShowPullProject(TSccExpert& expert) {
  TPullProjectWizard form(expert);
  form.ShowModal();
  return form.FileToOpen();
}
