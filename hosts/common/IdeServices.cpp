#include "hosts/common/IdeServices.h"

#include <wx/app.h>
#include <wx/msgdlg.h>

#include <filesystem>

#include "hosts/common/PackageStrings.h"
#include "system/FileName.h"
#include "system/Paths.h"
#include "toolkit/WxText.h"

namespace kestrel {

bool TApplicationService::HelpKeyword(const std::string& keyword) {
  if (help_.Show(keyword)) return true;
  wxMessageBox(ToWx(Format(sNoHelp, {keyword})), wxTheApp->GetAppDisplayName(), wxOK | wxICON_INFORMATION,
               wxGetActiveWindow());
  return false;
}

TIdeServices::TIdeServices(std::string settingsKey, std::string helpFolder, TLogLine log)
    : caller_(std::move(log)),
      options_(std::move(settingsKey)),
      application_(std::move(helpFolder)),
      startupDirectory_(ExcludeTrailingPathDelimiter(FromFilePath(std::filesystem::current_path()))) {
  Publish<IOTAServices>(*this);
  Publish<IOTAWizardServices>(wizards_);
  Publish<IOTAOptionsServices>(options_);
  Publish<IOTAGalleryCategoryManager>(categories_);
  Publish<IOTAApplication>(application_);
  windowless_ = published_.size();
  CorvaneIDEServices = this;
}

TIdeServices::~TIdeServices() { CorvaneIDEServices = nullptr; }

void TIdeServices::WithdrawWindowServices() {
  published_.resize(windowless_);
  application_.Help().Close();
}

std::size_t TIdeServices::DropRegistrations() {
  const std::size_t left =
      notifications_.Notifiers().Count() + wizards_.Wizards().Count() + options_.AddIns().Count();
  notifications_.Notifiers().Clear();
  wizards_.Wizards().Clear();
  options_.AddIns().Clear();
  return left;
}

int TIdeServices::AddNotifier(std::shared_ptr<IOTAIDENotifier> notifier) {
  return notifications_.Notifiers().Add(std::move(notifier));
}

void TIdeServices::RemoveNotifier(int index) {
  if (const auto notifier = notifications_.Notifiers().Remove(index))
    caller_.Run("Destroyed", [&] { notifier->Destroyed(); });
}

TWindowHandle TIdeServices::GetParentHandle() {
  const wxWindow* window = wxTheApp->GetTopWindow();
  return window ? reinterpret_cast<TWindowHandle>(window->GetHandle()) : 0;
}

void* TIdeServices::QueryInterface(const TGuid& iid) noexcept {
  for (const auto& row : published_)
    if (row.Iid == iid) return row.Service;
  return nullptr;
}

}  // namespace kestrel
