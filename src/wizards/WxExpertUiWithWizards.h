// The windows that the expert is given in the IDE, those of the wizards among them.
#pragma once

#include "commands/WxExpertUi.h"

namespace kestrel::addin {

class TWxExpertUiWithWizards final : public TWxExpertUi {
 public:
  void ShowCommitBrowser(TCommandContext& context) override;
  void ShowPlaceProject(TCommandContext& context) override;
  std::string ShowPullProject(TCommandContext& context) override;
};

}  // namespace kestrel::addin
