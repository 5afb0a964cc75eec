// The add-in object that the host registers: a facade over the parts that do the work.
//
// User-interface thread only.  A command that cannot continue throws EAbort with its message; the menu's handlers catch it.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "expert/CommandContext.h"
#include "expert/Edits.h"
#include "expert/ProjectFiles.h"
#include "expert/ProviderWindows.h"
#include "expert/Reopening.h"
#include "expert/SccSystem.h"
#include "host/Services.h"
#include "ui/ExpertMainMenu.h"

namespace kestrel::addin {

class TFormEditorManager;
class TSccIDENotifier;
class TSourceEditorManager;

class TSccExpert final : public TNotifierObject, public IOTAWizard, public ITeamCommands {
 public:
  /// `ui` is borrowed and must outlive the expert.  Never throws: a failure is shown in a box, and the expert keeps what
  /// was set before it.
  explicit TSccExpert(IExpertUi& ui, TTimeSource clock = std::chrono::steady_clock::now);
  ~TSccExpert() override;

  // Identity, called by the host.
  void* QueryInterface(const TGuid& iid) noexcept override;
  std::string GetIDString() override;
  std::string GetName() override;
  unsigned GetState() override;
  void Execute() override;
  std::string GetAuthor() override;
  std::string GetComment() override;
  std::string GetPage() override;
  std::string GetGlyph() override;
  std::string GetDesigner() override;
  IOTAGalleryCategory* GetGalleryCategory() override;
  std::string GetPersonality() override;

  // Settings and mapping file; see TProviderContext.
  void ReadSettings() { context_.Provider.ReadSettings(); }
  void ReadProjectSettings(const std::string& file) { context_.Provider.ReadSettings(file); }
  void ReadDefaultProvider(std::string& name) { TProviderContext::ReadDefaultProvider(name); }
  bool ProviderCreate(TWindowHandle param) { return context_.Provider.Create(param); }
  bool ReadSCCIniFile(const std::string& projectFile, std::string& projName, std::string& userName,
                      std::string& auxProjPath);
  bool UpdateSCCIniFile(const std::string& projectFile, const std::string& userName) {
    return context_.Provider.UpdateUserName(projectFile, userName);
  }
  bool ProjectExists(const std::string& mappingFile) { return context_.Provider.ProjectExists(mappingFile); }
  /// The user chose another provider in the options dialog: releases the old one and loads the new one at once.  A
  /// library may refuse to leave the process; it is then not used any more, and bound again when it is loaded next.
  /// Throws EAbort when loading fails or another activity forbids it.
  void ChooseProvider(const std::string& provider, const std::string& userName);

  // Opening and closing of projects.
  /// Handles one notification of the host, at once or when TActivities allows it.
  void HandleNotification(TOTAFileNotification code, const std::string& fileName);
  void FileNotifyProjectOpen(const std::string& fileName);
  void FileNotifyProjectClose(const std::string& fileName);
  std::string GetCurrentProjectFile() { return addin::GetCurrentProjectFile(); }

  // Menu.
  void MainMenu() override;
  void EnableActiveMenu();
  std::string CurrentFile() const override { return rv_GetCurrentFile(); }
  bool HasProviderProject() const override { return context_.Provider.CurrentProject() != nullptr; }
  bool IsAllowed(TFileAction action, const std::string& fileName) const override;
  std::optional<bool> HasProviderApplication() const override;
  void RunCommand(std::string_view format, const std::function<void()>& command) noexcept override;
  void RunMenuOpening(std::string_view format, const std::function<void()>& refresh) noexcept override;
  TExpertMainMenuModule* Menu() const { return menu_.get(); }

  // Messages.
  void DisplayMessages(const std::string& title, const TStateMessages& messages) {
    context_.Log.DisplayMessages(title, messages);
  }
  void ViewMessages() override { context_.Log.ShowWindow(true); }

  // Files that belong together.
  /// Replaces `list` by CurrentProjectFiles(); does nothing for null.  Throws EAbort without a provider.
  void AddAssociatedFiles(TStringList* list, bool removeMissing);
  void GetAssociatedFiles(const std::string& fileName, const TFileIndex& source, TStringList& dest,
                          bool checkDisk, const TStatusArray& statuses) const {
    AppendCompanions(fileName, source, dest, checkDisk, statuses);
  }

  // The file commands.  A blank name means every eligible file of the current project, otherwise that one file.
  void AddFiles(const std::string& fileName) override;
  void RemoveFiles(const std::string& fileName) override;
  void GetLatestVersion(const std::string& fileName) override;
  void CheckInFiles(const std::string& fileName) override;
  void CheckOutFiles(const std::string& fileName) override;
  void UndoCheckOut(const std::string& fileName) override;

  // For the host, when the user edits a read-only file; see TCheckOutOffer.
  bool IsCheckOutOffered(const std::string& fileName) const;
  bool CheckOutAtOnce(const std::string& fileName);

  // The provider's own windows.
  void ShowDiff(const std::string& fileName) override { addin::ShowDiff(context_, fileName); }
  void ShowHistory(const std::string& fileName) override { addin::ShowHistory(context_, fileName); }
  void Properties(const std::string& fileName) override { ShowProperties(context_, fileName); }
  void RunSccApp() override { RunProviderApplication(context_); }
  void ProviderAddRemove(TStringList& list, scc::SCCCommand command) {
    addin::ProviderAddRemove(context_, list, command);
  }
  /// Shows the status of a file whose view became active in the message window.
  void ViewChange(const std::string& fileName);

  // Wizards.
  void PlaceProject() override;
  void PullProjectWizard() override;
  void CommitBrowser() override { context_.Ui.ShowCommitBrowser(context_); }

  // Saving before and reloading after commands; see Edits.h.
  void SaveAll() { SaveAllModules(); }
  void ReloadProject(const std::string& projectFile) { addin::ReloadProject(projectFile); }
  void ReloadFile(const std::string& fileName) { addin::ReloadFile(fileName); }
  void ReloadFiles(const TStringList& files) { addin::ReloadFiles(files); }

  TCommandContext& Context() { return context_; }
  TSCCProviderList* ProviderList() const { return context_.Provider.List(); }
  const std::string& ProviderName() const { return context_.Provider.Name(); }
  const std::string& ProviderPath() const { return context_.Provider.Path(); }
  const std::string& UserName() const { return context_.Provider.UserName(); }
  bool ProjectNotMapped() const { return context_.Provider.ProjectNotMapped(); }
  TSourceEditorManager* SourceEditors() const { return sourceEditorManager_.get(); }
  TFormEditorManager* FormEditors() const { return formEditorManager_.get(); }

 private:
  void Create();
  void Run(TActivity activity, std::string_view format, const std::function<void()>& body) noexcept;
  /// Loads the provider and opens its project, unless a provider is loaded.
  void PrepareProvider(const std::string& project);
  /// How the opening of a project reports that it failed: with a box, or in the message window only.
  enum class TReport { Box, Lines };
  void OpenProject(const std::string& fileName, TReport report);
  void OpenProviderProject(const std::string& fileName, TReport report);
  void CloseFailedProject(const std::string& directory);
  std::string OpenProjectFile();
  void Handle(TOTAFileNotification code, const std::string& fileName);

  TCommandContext context_;
  TReopening reopening_;
  std::shared_ptr<TSccIDENotifier> ideNotifier_;
  std::unique_ptr<TFormEditorManager> formEditorManager_;
  std::unique_ptr<TSourceEditorManager> sourceEditorManager_;
  std::optional<int> ideNotifierIndex_;  // set while the notifier is registered
  TCheckOutOffer checkOutOffer_;
  std::unique_ptr<TExpertMainMenuModule> menu_;
};

/// The one expert, or null before the host's main form exists.  Owned by the host once it is registered.
extern TSccExpert* aSccExpert;

}  // namespace kestrel::addin
