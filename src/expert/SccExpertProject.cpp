// Opens and closes the provider project as the host opens, switches and closes projects.
#include "expert/MappingFile.h"
#include "expert/SccExpert.h"
#include "expert/SccExpertStrings.h"
#include "expert/SccIDENotifier.h"
#include "expert/SccSystem.h"
#include "host/Errors.h"
#include "system/Paths.h"
#include "ui/ExpertMainMenu.h"

namespace kestrel::addin {

void* TSccIDENotifier::QueryInterface(const TGuid& iid) noexcept {
  return FindInterface<IOTAIDENotifier, IOTANotifier>(this, iid);
}

void TSccIDENotifier::FileNotification(TOTAFileNotification code, const std::string& fileName, bool&) {
  expert_.HandleNotification(code, fileName);
}

void TSccExpert::HandleNotification(TOTAFileNotification code, const std::string& fileName) {
  // The host discards what a notifier throws.
  context_.Activities.Notify(
      [=, this] { RunCatching([&] { Handle(code, fileName); }, ToLog(mwtError, sFileNotificationError)); });
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

// The project to close.  The host may have switched its current project before it notifies.
std::string TSccExpert::OpenProjectFile() {
  const auto& file = context_.Provider.OpenProjectFile();
  return file.empty() ? GetCurrentProjectFile() : file;
}

void TSccExpert::FileNotifyProjectOpen(const std::string& fileName) { OpenProject(fileName, TReport::Box); }

void TSccExpert::OpenProject(const std::string& fileName, TReport report) {
  if (!IsProject(fileName)) return;
  if (!ProjectExists(ChangeFileExt(fileName, kMappingExtension))) return;
  if (ProviderList()) FileNotifyProjectClose(OpenProjectFile());
  ReadProjectSettings(fileName);
  if (!ProviderCreate(0)) throw EAbort(sProviderNotAssigned);
  OpenProviderProject(fileName, report);
}

void TSccExpert::OpenProviderProject(const std::string& fileName, TReport report) {
  const TActivities::TScope handling(context_.Activities, TActivity::Notification);
  auto& provider = context_.Provider;
  auto& list = *provider.List();
  const auto binding = provider.ReadBinding(fileName, list.UserName());
  const auto directory = ExtractFileDir(fileName);
  list.Add(directory);
  auto& project = provider.SelectProject(directory, sNoMatchingPath);
  project.set_ProjName(binding.ProjName);
  project.set_ProjPath(binding.AuxProjPath);
  project.set_UserName(binding.UserName);

  TStateMessages messages;
  reopening_.Begin(fileName);
  const auto code = project.OpenProject(messages);
  reopening_.End(code);
  // The boxes below do not show the reason, and a provider that let an exception out counts as opened.
  WriteMessage(mwtInfo, messages[1]);
  WriteMessage(mwtError, messages[2]);
  if (code == scc::SCC_OK) {
    provider.SetOpenProjectFile(fileName);
    provider.UpdateUserName(fileName, project.get_UserName());
    if (report == TReport::Lines) WriteMessageFmt(mwtInfo, sOpenAgain, {ExtractFileName(fileName)});
    return;
  }
  if (report == TReport::Box) {
    const bool refused = code == scc::SCC_E_INVALIDUSER;
    context_.Ui.ShowMsgDialog(sOpenProject, refused ? sInvalidUserName : sUnknownOpenError, metError);
    context_.Log.ShowWindow(false);
  }
  CloseFailedProject(directory);
}

void TSccExpert::CloseFailedProject(const std::string& directory) {
  TStateMessages messages;
  auto& list = *ProviderList();
  list.CurrentProject()->CloseProject(messages);
  if (menu_) menu_->EnableMenus(false);
  list.Remove(directory);
  list.SetCurrentProject(directory);  // the current project must not dangle
}

void TSccExpert::FileNotifyProjectClose(const std::string& fileName) {
  auto* list = ProviderList();
  if (!list) return;
  const TActivities::TScope handling(context_.Activities, TActivity::Notification);
  const auto directory = ExtractFileDir(fileName);
  if (list->SetCurrentProject(directory)) {
    TStateMessages messages;
    list->CurrentProject()->CloseProject(messages);
    DisplayMessages(sCloseProject, messages);
    list->Remove(directory);
  }
  context_.Provider.Release();
}

}  // namespace kestrel::addin
