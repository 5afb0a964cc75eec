#include "workbench/windows/IdeServices.h"

#include <wx/app.h>
#include <wx/msgdlg.h>

#include <filesystem>

#include "system/FileName.h"
#include "system/Paths.h"
#include "system/System.h"
#include "system/Text.h"
#include "toolkit/WxText.h"
#include "workbench/windows/FrameStrings.h"

namespace kestrel::workbench {

TApplicationService::TApplicationService() : help_(ResolvePath(ProgramFolder(), "help")) {}

bool TApplicationService::HelpKeyword(const std::string& keyword) {
  if (help_.Show(keyword)) return true;
  wxMessageBox(ToWx(Format(sNoHelp, {keyword})), ToWx(sProgramName), wxOK | wxICON_INFORMATION,
               wxGetActiveWindow());
  return false;
}

TIdeServices::TIdeServices(TLogLine log)
    : caller_(std::move(log)),
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

}  // namespace kestrel::workbench
