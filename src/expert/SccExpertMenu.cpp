// Enables the menu items according to the current project, its mapping file and the status of its files.
#include <algorithm>
#include <array>
#include <span>

#include "expert/CallProgress.h"
#include "expert/FileCommandStrings.h"
#include "expert/FileCommands.h"
#include "expert/MappingFile.h"
#include "expert/SccExpert.h"
#include "expert/SccSystem.h"
#include "system/Paths.h"
#include "system/System.h"
#include "ui/ExpertMainMenu.h"
#include "ui/ExpertMainMenuStrings.h"

namespace kestrel::addin {

void TSccExpert::MainMenu() {
  const auto project = Trim(GetCurrentProjectFile());
  const auto mapping = ChangeFileExt(project, kMappingExtension);
  const bool mapped = FileExists(mapping);
  menu_->EnableMenus(false);  // stays so if the rest fails
  menu_->EnablePlaceMenu(!mapped && !project.empty());
  try {
    if (auto& provider = context_.Provider;
        provider.ProjectNotMapped() || provider.MappingAppeared(mapping)) {
      provider.Release();
      provider.SetProjectNotMapped(false);
    }
    if (reopening_.IsDue(project)) OpenProject(project, TReport::Lines);
    PrepareProvider(project);
    if (mapped && ProviderList() && ProviderList()->GetCount() > 0) EnableActiveMenu();
  } catch (...) {
    menu_->EnableRunScc(ProviderList() != nullptr);
    throw;
  }
  menu_->EnableRunScc(ProviderList() != nullptr);
}

std::optional<bool> TSccExpert::HasProviderApplication() const {
  const auto* list = ProviderList();
  return list ? std::optional(list->Capabilities().test(pcSccRunScc)) : std::nullopt;
}

void TSccExpert::PrepareProvider(const std::string& project) {
  if (ProviderList()) return;
  ReadProjectSettings(project);
  if (ProviderCreate(0) && !project.empty()) FileNotifyProjectOpen(project);
}

void TSccExpert::EnableActiveMenu() {
  menu_->EnableMenus(true);
  TStringList files;
  TStatusArray statuses;
  TStateMessages messages;
  try {
    AddAssociatedFiles(&files, false);
    const TCallProgress progress(context_.Ui, sTeam, TCallProgress::Kind::Status, sAskingStatus, files);
    context_.Statuses.Query(SelectHostProject(context_), files, statuses, messages);
  } catch (...) {  // without the status no command is available
    menu_->EnableMenus(false);
    throw;
  }

  // Missing companions are uncontrolled, too; only files on disk can be added.
  menu_->actAddFiles.Enabled = false;
  for (std::size_t i = 0; i < files.size() && !menu_->actAddFiles.Enabled; ++i)
    menu_->actAddFiles.Enabled = CanAdd(statuses[i]) && FileExists(files[i]);

  struct TRule {
    TAction& Action;
    bool (*Eligible)(scc::Long status);
  };
  const std::array rules{
      TRule{menu_->actRemoveFiles, CanRemove},
      TRule{menu_->actCheckInFiles, CanCheckIn},
      TRule{menu_->actCheckOutFiles, CanCheckOut},
      // Stricter than the command itself, which also takes uncontrolled files; intentional.
      TRule{menu_->actUndoCheckOutFiles, CanCheckIn},
  };
  const std::span words(statuses.data(), files.size());
  for (const auto& rule : rules) rule.Action.Enabled = std::ranges::any_of(words, rule.Eligible);
}

}  // namespace kestrel::addin
