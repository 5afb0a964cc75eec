// The "Team" menu: its items, actions and the rules that enable them.  No windows: the host shows the menu.
#pragma once

#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "host/Menus.h"
#include "system/Text.h"

namespace kestrel::addin {

/// The commands behind the menu, declared by the layer that calls them; the expert implements them.  A command that
/// takes a file name works on the whole project when the name is empty.
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

  /// The file commands, the commit browser and the provider's application.  Pulling stays enabled, and the message
  /// item goes out of sight, whatever `enable` is.
  void EnableMenus(bool enable);
  void EnablePlaceMenu(bool enable);
  void EnableRunScc(bool enable);
  /// Shows the provider's application only when the provider has one; does nothing without a provider.
  void SetMenuCapabilities();

  // Handlers of the actions.
  void actPlaceProjectExecute();
  void actPullProjectExecute();
  void actAddFilesExecute();
  void actRemoveFilesExecute();
  void actGetFilesExecute();
  void actCheckInFilesExecute();
  void actCheckOutFilesExecute();
  void actUndoCheckOutFilesExecute();
  void actRunSccAppExecute();
  void actCommitBrowserExecute();
  void actMessagesExecute();

  // Handlers of the per-file variants, for the host's menus of files.
  void actAddSingleExecute(const std::string& fileName);
  void actRemoveSingleExecute(const std::string& fileName);
  void actGetSingleExecute(const std::string& fileName);
  void actCheckInSingleExecute(const std::string& fileName);
  void actCheckOutSingleExecute(const std::string& fileName);
  void actUndoCheckOutSingleExecute(const std::string& fileName);

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
  using TFileHandler = void (TExpertMainMenuModule::*)(const std::string& fileName);

  void DataModuleCreate();
  void CreateActions();
  void CreateItems();
  /// Gives the host the actions, each with a copy of its picture.
  void SetActionList();
  void InstallMenuItems();
  void CreateFileMenu();

  void MapClick();
  void actShowDiffExecute();
  void actShowHistoryExecute();
  void ShowDiffSingle(const std::string& fileName);
  void ShowHistorySingle(const std::string& fileName);
  void PropertiesSingle(const std::string& fileName);
  void Run(const TResString& error, void (ITeamCommands::*command)());
  void Run(const TResString& error, void (ITeamCommands::*command)(const std::string&),
           const std::string& fileName);

  ITeamCommands& commands_;
  TAction act_get_files_;  // of GetFiles, which the menu hides: the action list has it all the same
  TFileMenu file_menu_;
};

}  // namespace kestrel::addin
