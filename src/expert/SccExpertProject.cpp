// Opening and closing the provider project as the host opens, switches and closes projects.
#include "expert/MappingFile.h"
#include "expert/SccExpert.h"
#include "expert/SccExpertStrings.h"
#include "expert/SccIDENotifier.h"
#include "expert/SccSystem.h"
#include "host/Errors.h"
#include "host/Paths.h"
#include "ui/ExpertMainMenu.h"

void* TSccIDENotifier::QueryInterface(const TGuid& iid) noexcept {
  return FindInterface<IOTAIDENotifier, IOTANotifier>(this, iid);
}

void TSccIDENotifier::FileNotification(TOTAFileNotification code, const std::string& fileName, bool&) {
  expert_.HandleNotification(code, fileName);
}

void TSccExpert::HandleNotification(TOTAFileNotification code, const std::string& fileName) {
  // The host discards what a notifier throws, so the reason is kept where the user can find it.
  activities_.Notify(
      [=, this] { Guarded(mwtError, sFileNotificationError, [&] { Handle(code, fileName); }); });
}

void TSccExpert::Handle(TOTAFileNotification code, const std::string& fileName) {
  switch (code) {
    case TOTAFileNotification::fnFileOpened:
      if (IsProject(fileName) && fileName == GetCurrentProjectFile()) FileNotifyProjectOpen(fileName);
      break;
    case TOTAFileNotification::fnFileClosing:
      if (IsProject(fileName)) FileNotifyProjectClose(fileName);
      break;
    case TOTAFileNotification::fnActiveProjectChanged:
      FileNotifyProjectClose(OpenProjectFile());
      if (IsProject(fileName)) FileNotifyProjectOpen(fileName);
      break;
  }
}

std::string TSccExpert::GetCurrentProjectFile() {
  auto* project = CurrentProject();
  return project ? project->GetFileName() : std::string();
}

// A host may name the new project as current before it says so; the provider project to close is the one opened here.
std::string TSccExpert::OpenProjectFile() {
  return open_project_file_.empty() ? GetCurrentProjectFile() : open_project_file_;
}

void TSccExpert::FileNotifyProjectOpen(const std::string& fileName) {
  if (!IsProject(fileName)) return;
  if (!ProjectExists(ChangeFileExt(fileName, kMappingExtension))) return;
  if (provider_list_) FileNotifyProjectClose(OpenProjectFile());
  if (Trim(fileName).empty())
    ReadSettings();
  else
    ReadProjectSettings(fileName);
  if (!ProviderCreate(0)) throw EAbort(sProviderNotAssigned);
  OpenProviderProject(fileName);
}

void TSccExpert::OpenProviderProject(const std::string& fileName) {
  const TActivities::TScope handling(activities_, TActivity::Notification);
  std::string projName;
  std::string auxProjPath;
  std::string userName = provider_list_->UserName();
  ReadSCCIniFile(fileName, projName, userName, auxProjPath);

  const auto directory = ExtractFileDir(fileName);
  provider_list_->Add(directory);
  if (!provider_list_->SetCurrentProject(directory)) throw EAbort(sNoMatchingPath);
  auto& project = *provider_list_->CurrentProject();
  project.set_ProjName(projName);
  project.set_ProjPath(auxProjPath);
  project.set_UserName(userName);

  TStateMessages messages;
  const auto code = project.OpenProject(messages);
  // The boxes below say nothing of the reason, and a provider that let an exception out counts as opened.
  WriteMessage(mwtInfo, messages[1]);
  WriteMessage(mwtError, messages[2]);
  if (code == scc::SCC_OK) {
    open_project_file_ = fileName;
    UpdateSCCIniFile(fileName, project.get_UserName());
    return;
  }
  const bool refused = code == scc::SCC_E_INVALIDUSER;
  forms_.ShowMsgDialog(sOpenProject, refused ? sInvalidUserName : sUnknownOpenError, metError);
  CloseFailedProject(directory);
}

void TSccExpert::CloseFailedProject(const std::string& directory) {
  HideMessages();
  TStateMessages messages;
  provider_list_->CurrentProject()->CloseProject(messages);
  if (menu_) menu_->EnableMenus(false);
  provider_list_->Remove(directory);
  provider_list_->SetCurrentProject(directory);  // drops the reference to the one removed
}

// Providers may count on SccUninitialize coming with no project open.
void TSccExpert::ReleaseProvider() {
  activities_.RequireNoProviderCall();
  if (provider_list_ && provider_list_->SetCurrentProject(ExtractFileDir(open_project_file_))) {
    TStateMessages ignored;
    provider_list_->CurrentProject()->CloseProject(ignored);
  }
  provider_list_.reset();
  open_project_file_.clear();
}

void TSccExpert::FileNotifyProjectClose(const std::string& fileName) {
  if (!provider_list_) return;
  const TActivities::TScope handling(activities_, TActivity::Notification);
  const auto directory = ExtractFileDir(fileName);
  if (provider_list_->SetCurrentProject(directory)) {
    TStateMessages messages;
    provider_list_->CurrentProject()->CloseProject(messages);
    DisplayMessages(sCloseProject, messages);
    provider_list_->Remove(directory);
  }
  ReleaseProvider();
}
