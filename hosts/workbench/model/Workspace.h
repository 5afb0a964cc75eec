// The open files, projects and group, and the operations on them. Independent of windows: IWorkspaceUi shows them and
// asks the user.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "workbench/model/ModuleIndex.h"

namespace kestrel::workbench {

enum class TSaveAnswer { Save, Discard, Cancel };

/// The windows that the workspace works with.
class IWorkspaceUi {
 public:
  virtual ~IWorkspaceUi() = default;
  /// Creates a page for the editor and attaches its view, without bringing it to the front.
  virtual void EditorOpened(TTextEditor& editor) = 0;
  /// Removes the page; the editor still exists.
  virtual void EditorClosing(TTextEditor& editor) = 0;
  virtual void ShowEditor(TTextEditor& editor) = 0;
  /// The editor in front; null if there is none.
  virtual TTextEditor* ActiveEditor() = 0;
  /// The name, modified or read-only state changed.
  virtual void EditorChanged(TTextEditor& editor) = 0;
  /// The projects, their modules or the active project changed.
  virtual void ProjectsChanged() = 0;
  virtual TSaveAnswer AskSave(const std::string& fileName) = 0;
  /// Whether to replace the user's changes by what is on disk.
  virtual bool AskReload(const std::string& fileName) = 0;
  /// A file name to save under; empty if the user cancelled.
  virtual std::string AskSaveName(const std::string& proposed) = 0;
};

/// User-interface thread only. Operations throw std::runtime_error with a sentence for the user if they fail, and
/// return false if the user or a package stopped them.
class TWorkspace {
 public:
  TWorkspace(IWorkspaceUi& ui, const TPackageCaller& caller, TNotifications& notifications)
      : ui_(ui), caller_(caller), notifications_(notifications) {}

  /// Opens a group, a project in a new group, or a unit, depending on the extension; shows what is open already.
  bool Open(const std::string& fileName);
  /// With `newGroup`, closes everything first; otherwise adds the project to the open group.
  bool OpenProject(const std::string& fileName, bool newGroup);
  /// Writes an empty project and opens it in a new group.
  bool NewProject(const std::string& fileName);
  /// Creates an unsaved unit named Unit1, Unit2, ... in the active project, or in `directory` without one.
  TUnit& NewUnit(const std::string& directory);

  void Save(TDocument& document);
  /// Saves everything modified; throws at the first document that cannot be saved.
  bool SaveAll();
  bool SaveUnitAs(TUnit& unit);
  bool SaveGroupAs();

  bool Close(TOpenModule& module);
  /// Asks about all modified documents first; closes nothing if the user cancels then.
  bool CloseAll();
  /// Closes everything without asking, when the program ends.
  void CloseAllWithoutSaving();

  /// Reloads a file after asking about unsaved changes. False if the file is not open or the user keeps them.
  bool Reload(const std::string& fileName);
  /// Compares every open document with the disk and applies what changed there.
  void CheckDisk();

  void SetActiveProject(TProject& project);
  /// Adds files to the active project; returns the number of new ones. Throws without a project.
  std::size_t AddToProject(const std::vector<std::string>& fileNames);
  void RemoveFromProject(TProject& project, int index);

  TModuleIndex& Modules() { return index_; }
  const TModuleIndex& Modules() const { return index_; }
  TProjectGroup* Group() const { return group_; }
  TProject* ActiveProject() const { return group_ ? group_->Active() : nullptr; }
  TOpenModule* CurrentModule();
  TTextEditor* ActiveEditor() { return ui_.ActiveEditor(); }
  void Log(const std::string& line) const { caller_.Log(line); }

 private:
  template <class T>
  T& AddModule(std::unique_ptr<T> module) {
    T& added = *module;
    index_.Add(std::move(module));
    return added;
  }
  bool OpenGroup(const std::string& fileName);
  bool OpenUnit(const std::string& fileName);
  void ShowUnit(TUnit& unit);
  TProjectGroup& MakeGroup(const std::string& projectFile);
  void AttachListedProjects(TProjectGroup& group);
  void AnnounceOpened(const std::vector<std::string>& fileNames);

  bool AskAboutModified(const std::vector<TOpenModule*>& modules);
  bool AskAboutGroup();
  bool CloseEach(const std::vector<TOpenModule*>& modules);
  bool CloseOne(TOpenModule& module);
  void Forget(TOpenModule& module);
  bool CloseProject(TProject& project);
  std::vector<TOpenModule*> ClosingOrder() const;
  std::vector<TOpenModule*> OpenUnitsOf(TProject& project) const;
  void RememberActive();

  void Changed(TDocument& document);
  bool ReloadUnlessKept(TDocument& document);
  bool ReopenGroup();
  void CheckDocument(TDocument& document);

  IWorkspaceUi& ui_;
  const TPackageCaller& caller_;
  TNotifications& notifications_;
  TModuleIndex index_;
  TProjectGroup* group_ = nullptr;
  std::map<std::string, std::string> lastActive_;  // by group file: the active project when it was closed
};

}  // namespace kestrel::workbench
