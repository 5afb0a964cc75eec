// The "Team" menu: its items, actions and the rules that enable them.  No windows: the host shows the menu.
#pragma once

#include <stdexcept>
#include <string>
#include <vector>

#include "host/Menus.h"
#include "host/Text.h"

class TSccExpert;

/// The host lacks what the menu needs.
class EExpertMenu : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Created by the expert and installed in the host for as long as it lives.  User-interface thread only.
class TExpertMainMenuModule {
 public:
  /// `expert` is borrowed.  Throws EExpertMenu when the host has no menu services.
  explicit TExpertMainMenuModule(TSccExpert& expert);
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
  void Run(const TResString& error, void (TSccExpert::*command)());
  /// Runs a command of the expert for one file, or for the whole project when the name is empty.
  void Run(const TResString& error, void (TSccExpert::*command)(const std::string&),
           const std::string& fileName);

  TSccExpert& expert_;
  TAction act_get_files_;  // of GetFiles, which the menu hides: the action list has it all the same
  TFileMenu file_menu_;
};
