// The "Team" menu: its items, actions and the rules that enable them.  No windows: the host shows the menu.
#pragma once

#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "host/Menus.h"
#include "system/Text.h"
#include "ui/ExpertMainMenuStrings.h"

namespace kestrel::addin {

/// What a user can do with one file.  Inspecting shows its differences, history and properties.
enum class TFileAction { CheckOut, CheckIn, Add, Remove, UndoCheckOut, Get, Inspect };

/// The commands behind the menu; the expert implements them.  A command that takes a file name works on the whole project
/// when the name is empty.
class ITeamCommands {
 public:
  virtual void PlaceProject() = 0;
  virtual void PullProjectWizard() = 0;
  virtual void RunSccApp() = 0;
  virtual void CommitBrowser() = 0;
  virtual void ViewMessages() = 0;
  virtual void AddFiles(const std::string& fileName) = 0;
  virtual void RemoveFiles(const std::string& fileName) = 0;
  virtual void GetLatestVersion(const std::string& fileName) = 0;
  virtual void CheckInFiles(const std::string& fileName) = 0;
  virtual void CheckOutFiles(const std::string& fileName) = 0;
  virtual void UndoCheckOut(const std::string& fileName) = 0;
  virtual void ShowDiff(const std::string& fileName) = 0;
  virtual void ShowHistory(const std::string& fileName) = 0;
  virtual void Properties(const std::string& fileName) = 0;

  /// Enables the items for the current project.  Throws what prevents that.
  virtual void MainMenu() = 0;
  /// The file in the front-most editor; empty when there is none.
  virtual std::string CurrentFile() const = 0;
  virtual bool HasProviderProject() const = 0;
  /// Whether the file's last known status allows the action; true if none is known.
  virtual bool IsAllowed(TFileAction action, const std::string& fileName) const = 0;
  /// Whether the provider has an application of its own; nullopt without a provider.
  virtual std::optional<bool> HasProviderApplication() const = 0;

  /// Runs `command` if nothing else is running.  Reports a refusal and what `command` throws in the message window, as
  /// `format` with the message in place of %s.
  virtual void RunCommand(std::string_view format, const std::function<void()>& command) noexcept = 0;
  /// The same for the opening of the menu.
  virtual void RunMenuOpening(std::string_view format, const std::function<void()>& refresh) noexcept = 0;

 protected:
  ~ITeamCommands() = default;
};

/// The host lacks what the menu needs.
class EExpertMenu : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Created by the expert and installed in the host for as long as it lives.  User-interface thread only.
class TExpertMainMenuModule {
 public:
  /// `commands` is borrowed.  Throws EExpertMenu when the host has no menu services.
  explicit TExpertMainMenuModule(ITeamCommands& commands);
  ~TExpertMainMenuModule();
  TExpertMainMenuModule(const TExpertMainMenuModule&) = delete;
  TExpertMainMenuModule& operator=(const TExpertMainMenuModule&) = delete;

  /// Applies to the file commands, the commit browser and the provider's application.  Always enables pulling and hides
  /// the message item.
  void EnableMenus(bool enable);
  void EnablePlaceMenu(bool enable);
  void EnableRunScc(bool enable);
  /// Shows the application item only if the provider has one.  Does nothing without a provider.
  void SetMenuCapabilities();

  // Handlers of the actions.  Those of the file commands are for the whole project.
  void actPlaceProjectExecute() { Run(sPlaceProjectError, &ITeamCommands::PlaceProject); }
  void actPullProjectExecute() { Run(sPullProjectError, &ITeamCommands::PullProjectWizard); }
  void actAddFilesExecute() { actAddSingleExecute({}); }
  void actRemoveFilesExecute() { actRemoveSingleExecute({}); }
  void actGetFilesExecute() { actGetSingleExecute({}); }
  void actCheckInFilesExecute() { actCheckInSingleExecute({}); }
  void actCheckOutFilesExecute() { actCheckOutSingleExecute({}); }
  void actUndoCheckOutFilesExecute() { actUndoCheckOutSingleExecute({}); }
  void actRunSccAppExecute() { Run(sRunSccAppError, &ITeamCommands::RunSccApp); }
  void actCommitBrowserExecute() { Run(sCommitBrowserError, &ITeamCommands::CommitBrowser); }
  void actMessagesExecute() { Run(sMessagesError, &ITeamCommands::ViewMessages); }

  // Handlers for one file, for the host's menus of files.
  using TFileName = const std::string&;
  void actAddSingleExecute(TFileName file) { Run(sAddFilesError, &ITeamCommands::AddFiles, file); }
  void actRemoveSingleExecute(TFileName file) { Run(sRemoveFilesError, &ITeamCommands::RemoveFiles, file); }
  void actGetSingleExecute(TFileName file) {
    Run(sGetLatestVersionError, &ITeamCommands::GetLatestVersion, file);
  }
  void actCheckInSingleExecute(TFileName file) {
    Run(sCheckFilesInError, &ITeamCommands::CheckInFiles, file);
  }
  void actCheckOutSingleExecute(TFileName file) {
    Run(sCheckFilesOutError, &ITeamCommands::CheckOutFiles, file);
  }
  void actUndoCheckOutSingleExecute(TFileName file) {
    Run(sUndoFilesCheckOutError, &ITeamCommands::UndoCheckOut, file);
  }

  std::vector<TMenuItem*> ExpertMainMenu;  ///< what goes into the host's main menu: Map
  std::vector<TAction*> ExpertActionList;  ///< what goes into the host's action list
  TMenuItem Map;
  TMenuItem MainSep2, MainSep3, MainSep4;
  TMenuItem PlaceProject, PullProject, CommitBrowser;
  TMenuItem AddFiles, RemoveFiles, GetFiles, CheckInFiles, CheckOutFiles, UndoCheckOutFiles;
  TMenuItem ShowDifferences1, ShowHistory1, RunSccApplication1, Messages1;

  TAction actPlaceProject, actPullProject;
  TAction actAddFiles, actRemoveFiles, actCheckInFiles, actCheckOutFiles, actUndoCheckOutFiles;
  TAction actRunSccApp, actCommitBrowser, actMessages;

 private:
  using TFileHandler = void (TExpertMainMenuModule::*)(TFileName);

  void DataModuleCreate();
  void CreateActions();
  void CreateItems();
  /// Gives the host the actions, each with a copy of its picture.
  void SetActionList();
  void InstallMenuItems();
  void CreateFileMenu();

  void MapClick();
  void actShowDiffExecute() { ShowDiffSingle(commands_.CurrentFile()); }
  void actShowHistoryExecute() { ShowHistorySingle(commands_.CurrentFile()); }
  void ShowDiffSingle(TFileName file) { Run(sShowDiffError, &ITeamCommands::ShowDiff, file); }
  void ShowHistorySingle(TFileName file) { Run(sShowHistoryError, &ITeamCommands::ShowHistory, file); }
  void PropertiesSingle(TFileName file) { Run(sPropertiesError, &ITeamCommands::Properties, file); }
  void Run(const TResString& error, void (ITeamCommands::*command)());
  void Run(const TResString& error, void (ITeamCommands::*command)(const std::string&),
           const std::string& fileName);

  ITeamCommands& commands_;
  TAction actGetFiles_;  // of GetFiles; hidden in the menu, but in the host's action list
  TFileMenu fileMenu_;
};

}  // namespace kestrel::addin
