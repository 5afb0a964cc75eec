#include "ui/ExpertMainMenu.h"

#include "host/Services.h"
#include "ui/ExpertMainMenuStrings.h"
#include "ui/MenuImages.h"

namespace kestrel::addin {

namespace {

constexpr int kNoImage = -1;

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
TMenuItem HiddenItem(const char* name, const char* caption, int image, std::function<void()> onClick) {
  TMenuItem item;
  item.Name = name;
  item.Caption = caption;
  item.ImageIndex = image;
  item.Enabled = item.Visible = false;
  item.OnClick = std::move(onClick);
  return item;
}

IOTAMenuServices& MenuServices() {
  auto* services = IdeService<IOTAMenuServices>();
  if (!services) throw EExpertMenu(sUnableToGetIDEServices);
  return *services;
}

}  // namespace

TExpertMainMenuModule::TExpertMainMenuModule(ITeamCommands& commands) : commands_(commands) {
  DataModuleCreate();
}

TExpertMainMenuModule::~TExpertMainMenuModule() {
  auto* services = IdeService<IOTAMenuServices>();
  if (!services) return;
  services->RemoveFileMenu(fileMenu_);
  for (auto* top : ExpertMainMenu) services->RemoveMenu(*top);
  for (auto* action : ExpertActionList) services->DetachAction(*action);
}

void TExpertMainMenuModule::DataModuleCreate() {
  CreateActions();
  CreateItems();
  SetActionList();
  InstallMenuItems();
}

void TExpertMainMenuModule::SetActionList() {
  auto& services = MenuServices();
  // Each action has a copy of its own, also where two share a picture: the host may repaint one and not the other.
  for (auto* action : ExpertActionList)
    if (action->ImageIndex != kNoImage)
      action->ImageIndex = services.AddImage(MenuImageDocument(action->ImageIndex));
  for (auto* action : ExpertActionList) services.AttachAction(*action);
}

void TExpertMainMenuModule::InstallMenuItems() {
  auto& services = MenuServices();
  for (auto* item : {&ShowDifferences1, &ShowHistory1})
    item->ImageIndex = services.AddImage(MenuImageDocument(item->ImageIndex));
  CreateFileMenu();  // its items show the host's copies
  for (auto* top : ExpertMainMenu) services.InsertMenu(*top);
  services.InsertFileMenu(fileMenu_);
}

void TExpertMainMenuModule::CreateActions() {
  using TModule = TExpertMainMenuModule;
  struct TRow {
    TAction& Action;
    const char* Name;
    TResString Caption;
    bool Enabled;
    int Image;
    void (TModule::*Execute)();
  };
  const TRow rows[] = {
      {actPlaceProject, "actPlaceProject", sActPlaceProject, false, 5, &TModule::actPlaceProjectExecute},
      {actPullProject, "actPullProject", sActPullProject, false, 4, &TModule::actPullProjectExecute},
      {actAddFiles, "actAddFiles", sActAddFiles, true, 1, &TModule::actAddFilesExecute},
      {actRemoveFiles, "actRemoveFiles", sActRemoveFiles, true, 6, &TModule::actRemoveFilesExecute},
      {actCheckInFiles, "actCheckInFiles", sActCheckInFiles, true, 1, &TModule::actCheckInFilesExecute},
      {actCheckOutFiles, "actCheckOutFiles", sActCheckOutFiles, true, 2, &TModule::actCheckOutFilesExecute},
      {actUndoCheckOutFiles, "actUndoCheckOutFiles", sActUndoCheckOutFiles, true, 8,
       &TModule::actUndoCheckOutFilesExecute},
      {actRunSccApp, "actRunSccApp", sActRunSccApp, true, 7, &TModule::actRunSccAppExecute},
      {actCommitBrowser, "actCommitBrowser", sActCommitBrowser, true, 3, &TModule::actCommitBrowserExecute},
      {actMessages, "actMessages", sActMessages, true, kNoImage, &TModule::actMessagesExecute},
      {actGetFiles_, "actGetFiles", sGetLatestVersion, true, 9, &TModule::actGetFilesExecute},
  };
  for (const auto& row : rows) {
    auto& action = row.Action;
    action.Name = row.Name;
    action.Caption = row.Caption;
    action.Category = sTeam;
    action.ImageIndex = row.Image;
    action.Enabled = row.Enabled;
    action.OnExecute = [this, execute = row.Execute] { (this->*execute)(); };
    ExpertActionList.push_back(&action);
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
      HiddenItem("ShowDifferences1", sItemShowDifferences.Text, 18, [this] { actShowDiffExecute(); });
  GetFiles = Item("GetFiles", actGetFiles_);
  GetFiles.Enabled = GetFiles.Visible = false;
  ShowHistory1 = HiddenItem("ShowHistory1", sItemShowHistory.Text, 19, [this] { actShowHistoryExecute(); });
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
  ExpertMainMenu = {&Map};
}

void TExpertMainMenuModule::CreateFileMenu() {
  using enum TFileAction;
  const auto item = [this](TFileAction action, const std::string& caption, int image, TFileHandler handler) {
    return TFileMenu::TItem{caption, image, [=, this](const std::string& file) { (this->*handler)(file); },
                            [=, this](const std::string& file) { return commands_.IsAllowed(action, file); }};
  };
  const auto command = [&](TFileAction action, const TAction& shown, TFileHandler handler) {
    return item(action, shown.Caption, shown.ImageIndex, handler);
  };
  using TModule = TExpertMainMenuModule;
  fileMenu_.Caption = sTeam;
  fileMenu_.Items = {
      command(CheckOut, actCheckOutFiles, &TModule::actCheckOutSingleExecute),
      command(CheckIn, actCheckInFiles, &TModule::actCheckInSingleExecute),
      command(Add, actAddFiles, &TModule::actAddSingleExecute),
      command(Remove, actRemoveFiles, &TModule::actRemoveSingleExecute),
      command(UndoCheckOut, actUndoCheckOutFiles, &TModule::actUndoCheckOutSingleExecute),
      {sSeparator, kNoImage, {}},
      item(Inspect, ShowDifferences1.Caption, ShowDifferences1.ImageIndex, &TModule::ShowDiffSingle),
      command(Get, actGetFiles_, &TModule::actGetSingleExecute),
      item(Inspect, ShowHistory1.Caption, ShowHistory1.ImageIndex, &TModule::ShowHistorySingle),
      item(Inspect, sItemProperties, kNoImage, &TModule::PropertiesSingle),
  };
  fileMenu_.IsEnabled = [this](const std::string& fileName) {
    return !Trim(fileName).empty() && commands_.HasProviderProject();
  };
}

void TExpertMainMenuModule::EnableMenus(bool enable) {
  for (auto* item : {&CheckOutFiles, &CheckInFiles, &AddFiles, &RemoveFiles, &UndoCheckOutFiles,
                     &CommitBrowser, &RunSccApplication1})
    item->Enabled = item->Action->Enabled = enable;
  actGetFiles_.Enabled = enable;
  actPullProject.Enabled = PullProject.Enabled = true;  // pulling needs no open project
  actMessages.Visible = Messages1.Visible = false;      // intentional, in both cases
}

void TExpertMainMenuModule::EnablePlaceMenu(bool enable) {
  actPlaceProject.Enabled = PlaceProject.Enabled = enable;
}

void TExpertMainMenuModule::EnableRunScc(bool enable) {
  actRunSccApp.Enabled = RunSccApplication1.Enabled = enable;
}

void TExpertMainMenuModule::SetMenuCapabilities() {
  if (const auto application = commands_.HasProviderApplication()) actRunSccApp.Visible = *application;
}

void TExpertMainMenuModule::MapClick() {
  commands_.RunMenuOpening(sMainMenuError, [this] {
    commands_.MainMenu();
    SetMenuCapabilities();
  });
}

void TExpertMainMenuModule::Run(const TResString& error, void (ITeamCommands::*command)()) {
  commands_.RunCommand(error, [&] { (commands_.*command)(); });
}
void TExpertMainMenuModule::Run(const TResString& error, void (ITeamCommands::*command)(const std::string&),
                                const std::string& fileName) {
  commands_.RunCommand(error, [&] { (commands_.*command)(fileName); });
}

}  // namespace kestrel::addin
