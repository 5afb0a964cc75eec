// The main window: menus, project tree, editors, message pane, status bar.
#pragma once

#include <wx/frame.h>
#include <wx/splitter.h>

#include <memory>
#include <string>

#include "hosts/common/IdeServices.h"
#include "hosts/common/MenuBridge.h"
#include "system/Text.h"
#include "workbench/model/FileStates.h"
#include "workbench/model/Settings.h"
#include "workbench/model/WorkspaceServices.h"

namespace kestrel {
class TPackageLoader;
}

namespace kestrel::workbench {

class TCheckOutQuestion;
class TEditorBook;
class TFindReplace;
class TMessagePane;
class TProjectTree;

class TMainFrame final : public wxFrame, public IWorkspaceUi {
 public:
  /// Publishes the services that need windows.  `services` and `packages` are borrowed.
  TMainFrame(TIdeServices& services, const TPackageLoader& packages);
  ~TMainFrame() override;

  TWorkspace& Workspace() { return workspace_; }
  TEditorBook& Book() { return *book_; }
  TMessagePane& Messages() { return *messages_; }
  TMenuBridge& PackageMenus() { return *menus_; }
  const TFileStateServices& FileStates() const { return fileStates_; }
  void AddMessage(const std::string& line);
  /// Opens a file; shows failures in a message box.
  void OpenForUser(const std::string& fileName);
  /// Adds the windows that packages have created to the View menu.
  void OfferPackageWindows();
  /// Applies changes that other programs made to open files.
  void CheckFilesOnDisk();

  void EditorOpened(TTextEditor& editor) override;
  void EditorClosing(TTextEditor& editor) override;
  void ShowEditor(TTextEditor& editor) override;
  TTextEditor* ActiveEditor() override;
  void EditorChanged(TTextEditor& editor) override;
  void ProjectsChanged() override;
  TSaveAnswer AskSave(const std::string& fileName) override;
  bool AskReload(const std::string& fileName) override;
  std::string AskSaveName(const std::string& proposed) override;

 private:
  struct TCommand;
  struct TCommandMenu;
  static const std::vector<TCommandMenu>& CommandMenus();
  static const TCommand* FindCommand(int id);

  void CreateWindows();
  void CreateMenus();
  wxMenu* CreateMenu(const TCommandMenu& description);
  void AppendCommand(wxMenu& menu, int id);
  void FillTreeMenu(wxMenu& menu, const std::string& fileName);
  void FillTabMenu(wxMenu& menu, const std::string& fileName);
  void FillRecentMenu();
  void OnCommand(wxCommandEvent& event);
  void OnUpdateCommand(wxUpdateUIEvent& event);
  void OnClose(wxCloseEvent& event);
  /// Caret, state or title may have changed: updates them when idle. Editors report it while they paint, when no other
  /// window may be touched.
  void StateChanged();
  void ShowState();
  void ShowFileStates(const std::vector<TFileState>& states);
  void SaveWindowState();
  void AddWizards();
  /// Runs an operation; shows its failure in a message box.
  void RunShowingErrors(const std::function<void()>& operation);
  wxString AskFile(const TResString& title, const TResString& filter, long style,
                   const std::string& proposed = {});

  // Commands, in the order of the menus.
  void NewUnit();
  void NewProject();
  void NewOther();
  void OpenFiles();
  void OpenProject();
  void ReloadCurrent();
  void SaveCurrent();
  void SaveCurrentAs();
  void SaveAll();
  void CloseCurrent();
  void CloseAll();
  void Exit();
  void Undo();
  void Redo();
  void Cut();
  void Copy();
  void Paste();
  void SelectAll();
  void Find();
  void FindNext();
  void Replace();
  void GoToLine();
  void ToggleTree();
  void ToggleMessages();
  void ToggleForm();
  void NextEditor();
  void AddToProject();
  void RemoveFromProject();
  void AddProject();
  void SetActiveProject();
  void CloseProject();
  void SaveGroupAs();
  void ShowOptions();
  void ShowCommands();
  void ShowContents();
  void ShowAbout();
  bool HasEditor() const;
  bool CanEdit() const;
  bool CanUndo() const;
  bool CanRedo() const;
  bool HasSelection() const;
  bool HasProject() const;
  bool HasModules() const;
  bool HasForm() const;
  bool HasSelectedProject() const;
  bool HasSelectedModule() const;

  TIdeServices& services_;
  const TPackageLoader& packages_;
  TWorkspace workspace_;
  TModuleServices moduleServices_{workspace_};
  TEditorServices editorServices_{workspace_};
  TActionServices actionServices_{workspace_};
  TFileStateServices fileStates_{[this](const auto& states) { ShowFileStates(states); }};
  TRecentFiles recent_;
  std::vector<int> ownWizards_;
  std::unique_ptr<TMenuBridge> menus_;
  std::unique_ptr<TFindReplace> find_;
  std::unique_ptr<TCheckOutQuestion> checkOutQuestion_;
  wxMenu* recentMenu_ = nullptr;
  wxMenu* viewMenu_ = nullptr;
  wxSplitterWindow* columns_ = nullptr;
  wxSplitterWindow* rows_ = nullptr;
  wxPanel* treePanel_ = nullptr;
  wxPanel* messagePanel_ = nullptr;
  TProjectTree* tree_ = nullptr;
  TEditorBook* book_ = nullptr;
  TMessagePane* messages_ = nullptr;
  wxString hintedFile_;
  bool stateShown_ = false;
  bool checkingFiles_ = false;
};

}  // namespace kestrel::workbench
