#include "wizards/WizardForms.h"

#include "wizards/CommitBrowser.h"

void TWizardForms::ShowCommitBrowser(TSccExpert& expert) { TCommitBrowser(expert).ShowModal(); }
