// Which menu items are available, from the current project, its mapping file and the status of its files.
#include <algorithm>
#include <array>
#include <span>

#include "expert/CallProgress.h"
#include "expert/FileCommandStrings.h"
#include "expert/FileCommands.h"
#include "expert/MappingFile.h"
#include "expert/SccExpert.h"
#include "expert/SccSystem.h"
#include "host/Paths.h"
#include "host/System.h"
#include "ui/ExpertMainMenu.h"
#include "ui/ExpertMainMenuStrings.h"

void TSccExpert::MainMenu() {
  const auto project = Trim(GetCurrentProjectFile());
  const bool mapped = FileExists(ChangeFileExt(project, kMappingExtension));
  menu_->EnableMenus(false);  // holds if what follows fails
  menu_->EnablePlaceMenu(!mapped && !project.empty());
  try {
    if (project_not_mapped_ || MappingAppeared()) {
      ReleaseProvider();
      project_not_mapped_ = false;
    }
    PrepareProvider(project);
    if (mapped && provider_list_ && provider_list_->GetCount() > 0) EnableActiveMenu();
  } catch (...) {
    menu_->EnableRunScc(provider_list_ != nullptr);
    throw;
  }
  menu_->EnableRunScc(provider_list_ != nullptr);
}

std::string TSccExpert::CurrentFile() const { return rv_GetCurrentFile(); }

bool TSccExpert::HasProviderProject() const { return provider_list_ && provider_list_->CurrentProject(); }

std::optional<bool> TSccExpert::HasProviderApplication() const {
  if (!provider_list_) return std::nullopt;
  return provider_list_->Capabilities().test(pcSccRunScc);
}

void TSccExpert::PrepareProvider(const std::string& project) {
  if (provider_list_) return;
  if (project.empty())
    ReadSettings();
  else
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
    const TCallProgress progress(forms_, sTeam, TCallProgress::Kind::Status, sAskingStatus, files);
    RequireCurrentProject().Query(files, statuses, messages);
  } catch (...) {  // no status, no commands; the reason goes to the message window
    menu_->EnableMenus(false);
    throw;
  }

  // Companions that a unit never had are uncontrolled, too; the command offers only what is on disk.
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
      // Undo wants a controlled file here although the command itself does not ask: the menu follows check-in.
      TRule{menu_->actUndoCheckOutFiles, CanCheckIn},
  };
  const std::span words(statuses.data(), files.size());
  for (const auto& rule : rules) rule.Action.Enabled = std::ranges::any_of(words, rule.Eligible);
}
