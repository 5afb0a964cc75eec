// The windows that the expert is given in the IDE, those of the wizards among them.
#pragma once

#include "commands/ExpertFormsWx.h"

class TWizardForms final : public TExpertForms {
 public:
  void ShowCommitBrowser(TSccExpert& expert) override;
  void ShowPlaceProject(TSccExpert& expert) override;
  std::string ShowPullProject(TSccExpert& expert) override;
};
