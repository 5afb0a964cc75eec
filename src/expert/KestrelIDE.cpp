// The entry points of the run-time package.  The only file that knows both the expert and the real windows.
#include <memory>
#include <optional>

#include "expert/SccExpert.h"
#include "host/Options.h"
#include "host/Services.h"
#include "provider/SCMAddInOptions.h"
#include "provider/SCMOptions.h"
#include "ui/Debug.h"
#include "wizards/WxExpertUi.h"

namespace kestrel::addin {

namespace {

/// Creates the expert and registers it once the host's main form exists.  Created by IDERegister.
class TProductStartup {
 public:
  TProductStartup() {
    if (auto* application = IdeService<IOTAApplication>())
      cookie_ = application->MainFormCreated().Subscribe([this] { MainFormCreated(); });
  }
  TProductStartup(const TProductStartup&) = delete;
  TProductStartup& operator=(const TProductStartup&) = delete;
  ~TProductStartup() {
    auto* wizards = IdeService<IOTAWizardServices>();
    if (wizards && wizardIndex_)
      wizards->RemoveWizard(*wizardIndex_);  // drops the last reference and destroys the expert
    auto* options = IdeService<IOTAOptionsServices>();
    if (options && optionsIndex_) options->RemoveOptions(*optionsIndex_);
    auto* application = IdeService<IOTAApplication>();
    if (application && cookie_) application->MainFormCreated().Unsubscribe(*cookie_);
  }

 private:
  void MainFormCreated() {
    if (aSccExpert) return;
    auto expert = std::make_shared<TSccExpert>(ui_);
    aSccExpert = expert.get();
    if (auto* wizards = IdeService<IOTAWizardServices>())
      wizardIndex_ = wizards->AddWizard(std::move(expert));
    if (auto* options = IdeService<IOTAOptionsServices>())
      optionsIndex_ = options->AddOptions(std::make_shared<TSCMAddInEnvironmentOptions>(CreateOptionsPage));
  }

  static wxWindow* CreateOptionsPage(wxWindow* parent, IOTAOptionsPageHost& host) {
    return new TSCMOptionsPage(parent, host, [](const std::string& provider, const std::string& userName) {
      if (aSccExpert) aSccExpert->ChooseProvider(provider, userName);
    });
  }

  TWxExpertUi ui_;
  std::optional<int> cookie_;
  std::optional<int> wizardIndex_;
  std::optional<int> optionsIndex_;
};

std::unique_ptr<TProductStartup> startup;

}  // namespace

extern "C" {
const char* PackageVersion() { return KESTREL_VERSION; }
void Initialize() { CreateDebugForm(); }
void IDERegister() { startup = std::make_unique<TProductStartup>(); }
void Finalize() {
  startup.reset();
  FreeDebugForm();
}
}

}  // namespace kestrel::addin
