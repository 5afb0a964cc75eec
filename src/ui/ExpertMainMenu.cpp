#include "ui/ExpertMainMenu.h"

#include <stdexcept>

#include "expert/SccExpert.h"
#include "expert/SccExpertStrings.h"
#include "expert/SccSystem.h"
#include "ui/ExpertMainMenuStrings.h"

namespace {

constexpr const char* kCategory = "Team";

TMenuItem Item(const char* name, TAction& action, const char* caption = "") {
  TMenuItem item;
  item.Name = name;
  item.Caption = caption;
  item.Action = &action;
  return item;
}

TMenuItem Separator(const char* name) {
  TMenuItem item;
  item.Name = name;
  item.Caption = sSeparator;
  return item;
}

/// An item without an action of its own, hidden and disabled until somebody shows it.
TMenuItem HiddenItem(const char* name, const char* caption, std::function<void()> onClick) {
  TMenuItem item;
  item.Name = name;
  item.Caption = caption;
  item.Enabled = item.Visible = false;
  item.OnClick = std::move(onClick);
  return item;
}

IOTAMenuServices& MenuServices() {
  auto* services = IdeService<IOTAMenuServices>();
  if (!services) throw std::runtime_error(sUnableToGetIDEServices);
  return *services;
}

}  // namespace

TExpertMainMenuModule::TExpertMainMenuModule(TSccExpert& expert) : expert_(expert) {
  auto& services = MenuServices();
  CreateActions();
  CreateItems();
  for (auto* action : Actions()) services.AttachAction(*action);
  services.InsertMenu(Map);
}

TExpertMainMenuModule::~TExpertMainMenuModule() {
  auto* services = IdeService<IOTAMenuServices>();
  if (!services) return;
  services->RemoveMenu(Map);
  for (auto* action : Actions()) services->DetachAction(*action);
}

std::vector<TAction*> TExpertMainMenuModule::Actions() {
  return {&actPlaceProject,  &actPullProject,       &actAddFiles,  &actRemoveFiles,   &actCheckInFiles,
          &actCheckOutFiles, &actUndoCheckOutFiles, &actRunSccApp, &actCommitBrowser, &actMessages};
}

void TExpertMainMenuModule::CreateActions() {
  // A command of the whole project is called with an empty file name.
  const auto project = [](void (TSccExpert::*command)(const std::string&)) {
    return [command](TSccExpert& expert) { (expert.*command)({}); };
  };
  struct TRow {
    TAction& Action;
    const char* Name;
    TResString Caption;
    bool Enabled;
    TResString Error;
    std::function<void(TSccExpert&)> Command;
  };
  const TRow rows[] = {
      {actPlaceProject, "actPlaceProject", sActPlaceProject, false, sPlaceProjectError,
       &TSccExpert::PlaceProject},
      {actPullProject, "actPullProject", sActPullProject, false, sPullProjectError,
       &TSccExpert::PullProjectWizard},
      {actAddFiles, "actAddFiles", sActAddFiles, true, sAddFilesError, project(&TSccExpert::AddFiles)},
      {actRemoveFiles, "actRemoveFiles", sActRemoveFiles, true, sRemoveFilesError,
       project(&TSccExpert::RemoveFiles)},
      {actCheckInFiles, "actCheckInFiles", sActCheckInFiles, true, sCheckFilesInError,
       project(&TSccExpert::CheckInFiles)},
      {actCheckOutFiles, "actCheckOutFiles", sActCheckOutFiles, true, sCheckFilesOutError,
       project(&TSccExpert::CheckOutFiles)},
      {actUndoCheckOutFiles, "actUndoCheckOutFiles", sActUndoCheckOutFiles, true, sUndoFilesCheckOutError,
       project(&TSccExpert::UndoCheckOut)},
      {actRunSccApp, "actRunSccApp", sActRunSccApp, true, sRunSccAppError, &TSccExpert::RunSccApp},
      {actCommitBrowser, "actCommitBrowser", sActCommitBrowser, true, sCommitBrowserError,
       &TSccExpert::CommitBrowser},
      {actMessages, "actMessages", sActMessages, true, sMessagesError, &TSccExpert::ViewMessages},
  };
  for (const auto& row : rows) {
    auto& action = row.Action;
    action.Name = row.Name;
    action.Caption = row.Caption;
    action.Category = kCategory;
    action.Enabled = row.Enabled;
    action.OnExecute = [this, command = row.Command, error = row.Error] {
      expert_.RunCommand(error.Text, [&] { command(expert_); });
    };
  }
}

void TExpertMainMenuModule::CreateItems() {
  CheckOutFiles = Item("CheckOutFiles", actCheckOutFiles);
  CheckInFiles = Item("CheckInFiles", actCheckInFiles);
  AddFiles = Item("AddFiles", actAddFiles);
  RemoveFiles = Item("RemoveFiles", actRemoveFiles);
  UndoCheckOutFiles = Item("UndoCheckOutFiles", actUndoCheckOutFiles);
  MainSep2 = Separator("MainSep2");
  CommitBrowser = Item("CommitBrowser", actCommitBrowser, sItemCommitBrowser.Text);
  PlaceProject = Item("PlaceProject", actPlaceProject, sItemPlaceProject.Text);
  PullProject = Item("PullProject", actPullProject);
  MainSep3 = Separator("MainSep3");
  MainSep3.Visible = false;
  ShowDifferences1 =
      HiddenItem("ShowDifferences1", sItemShowDifferences.Text, [this] { actShowDiffExecute(); });
  GetFiles = HiddenItem("GetFiles", sItemGetFiles.Text, [this] { actGetFilesExecute(); });
  ShowHistory1 = HiddenItem("ShowHistory1", sItemShowHistory.Text, [this] { actShowHistoryExecute(); });
  MainSep4 = Separator("MainSep4");
  Messages1 = Item("Messages1", actMessages);
  RunSccApplication1 = Item("RunSccApplication1", actRunSccApp);
  for (auto* item :
       {&CheckOutFiles, &CheckInFiles, &AddFiles, &RemoveFiles, &UndoCheckOutFiles, &CommitBrowser})
    item->Enabled = false;

  Map.Name = "Map";
  Map.Caption = sTeam;
  Map.OnClick = [this] { MapClick(); };
  Map.Items = {&CheckOutFiles, &CheckInFiles, &AddFiles,    &RemoveFiles,       &UndoCheckOutFiles, &MainSep2,
               &CommitBrowser, &PlaceProject, &PullProject, &MainSep3,          &ShowDifferences1,  &GetFiles,
               &ShowHistory1,  &MainSep4,     &Messages1,   &RunSccApplication1};
}

void TExpertMainMenuModule::EnableMenus(bool enable) {
  for (auto* item : {&CheckOutFiles, &CheckInFiles, &AddFiles, &RemoveFiles, &UndoCheckOutFiles,
                     &CommitBrowser, &RunSccApplication1})
    item->Enabled = item->Action->Enabled = enable;
  actPullProject.Enabled = PullProject.Enabled = true;  // pulling needs no open project
  actMessages.Visible = Messages1.Visible = false;      // meant, in both cases
}

void TExpertMainMenuModule::EnablePlaceMenu(bool enable) {
  actPlaceProject.Enabled = PlaceProject.Enabled = enable;
}

void TExpertMainMenuModule::EnableRunScc(bool enable) {
  actRunSccApp.Enabled = RunSccApplication1.Enabled = enable;
}

void TExpertMainMenuModule::SetMenuCapabilities() {
  if (const auto* provider = expert_.ProviderList())
    actRunSccApp.Visible = provider->Capabilities().test(pcSccRunScc);
}

void TExpertMainMenuModule::MapClick() {
  expert_.RunCommand(sMainMenuError.Text, [this] {
    expert_.MainMenu();
    SetMenuCapabilities();
  });
}

void TExpertMainMenuModule::actGetFilesExecute() { actGetSingleExecute({}); }

void TExpertMainMenuModule::actShowDiffExecute() {
  expert_.RunCommand(sShowDiffError.Text, [this] { expert_.ShowDiff(rv_GetCurrentFile()); });
}

void TExpertMainMenuModule::actShowHistoryExecute() {
  expert_.RunCommand(sShowHistoryError.Text, [this] { expert_.ShowHistory(rv_GetCurrentFile()); });
}

void TExpertMainMenuModule::actAddSingleExecute(const std::string& fileName) {
  expert_.RunCommand(sAddFilesError.Text, [&] { expert_.AddFiles(fileName); });
}
void TExpertMainMenuModule::actRemoveSingleExecute(const std::string& fileName) {
  expert_.RunCommand(sRemoveFilesError.Text, [&] { expert_.RemoveFiles(fileName); });
}
void TExpertMainMenuModule::actGetSingleExecute(const std::string& fileName) {
  expert_.RunCommand(sGetLatestVersionError.Text, [&] { expert_.GetLatestVersion(fileName); });
}
void TExpertMainMenuModule::actCheckInSingleExecute(const std::string& fileName) {
  expert_.RunCommand(sCheckFilesInError.Text, [&] { expert_.CheckInFiles(fileName); });
}
void TExpertMainMenuModule::actCheckOutSingleExecute(const std::string& fileName) {
  expert_.RunCommand(sCheckFilesOutError.Text, [&] { expert_.CheckOutFiles(fileName); });
}
void TExpertMainMenuModule::actUndoCheckOutSingleExecute(const std::string& fileName) {
  expert_.RunCommand(sUndoFilesCheckOutError.Text, [&] { expert_.UndoCheckOut(fileName); });
}
