// The add-in object: owns everything that lives as long as the package is loaded and carries out its commands.
//
// User-interface thread only.  A command that cannot go on throws EAbort with its message; the menu's handlers catch it.
#pragma once

#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "expert/Activities.h"
#include "expert/ExpertForms.h"
#include "expert/FileIndex.h"
#include "expert/FileListModel.h"
#include "host/Services.h"
#include "provider/sccapiintf.h"
#include "ui/ExpertMainMenu.h"
#include "ui/Messages.h"

class TFormEditorManager;
class TProviderMessages;
class TSccIDENotifier;
class TSourceEditorManager;

/// Files that travel with a source unit, and those that travel with a project: the extension is replaced by each entry.
inline constexpr std::array SRC_EXTENSIONS{".kdp", ".kfm", ".kcr", ".tlb", ".xfm", "_tlb.pas", ".nfm"};
inline constexpr std::array PRJ_EXTENSIONS{".kpr",  ".cfg", ".kof", ".dsk",     ".res",
                                           ".todo", ".tlb", ".kcr", "_tlb.pas", "_tlb.kcr"};

/// Writes one line to the message window; an all-blank text is dropped.  Throws std::runtime_error when there is no
/// message window.
void WriteMessage(TMsgWinType kind, const std::string& text);
void WriteMessageFmt(TMsgWinType kind, std::string_view format, std::initializer_list<TFormatArg> args);

/// Writes why a provider call failed, behind the name of what was to be done.
void WriteFailure(const std::string& what, const TStateMessages& messages);

/// The boundary of a routine: whatever `body` throws becomes one line of the message window, `format` with the error's
/// message in place of %s.
void Guarded(TMsgWinType kind, const TResString& format, const std::function<void()>& body);

class TSccExpert final : public TNotifierObject, public IOTAWizard, public ITeamCommands {
 public:
  /// `forms` is borrowed and must outlive the expert.  Never throws: a failure is shown in a box, and the expert exists
  /// with whatever was set before it.
  explicit TSccExpert(IExpertForms& forms);
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

  // Settings and mapping file.  Every routine catches its errors and writes one line to the message window.
  void ReadSettings();
  /// The same, but the project's mapping file wins over the user's settings.
  void ReadProjectSettings(const std::string& projectFile);
  /// The display name of the machine's default provider; `name` is left alone when there is none.
  void ReadDefaultProvider(std::string& name);
  /// The user chose another provider in the options dialog: drops the old one, library included, and creates the new
  /// one at once.  A library may refuse to leave the process (that of Subversion does, because what it links cannot be
  /// torn down); it is out of use all the same, and comes back as it was.  Throws EAbort when that fails, and when
  /// Activities() refuse it.
  void ChooseProvider(const std::string& provider, const std::string& userName);
  /// Creates the provider list for the current library path, in place of the one there is; false without a path.  Throws
  /// EAbort when the library cannot be loaded, and when the old one cannot be released.  `param` is the parent window of
  /// the provider's dialogs, 0 for none.
  bool ProviderCreate(TWindowHandle param);
  bool ReadSCCIniFile(const std::string& projectFile, std::string& projName, std::string& userName,
                      std::string& auxProjPath);
  bool UpdateSCCIniFile(const std::string& projectFile, const std::string& userName);
  /// Whether the mapping file exists and binds the current provider; also sets ProjectNotMapped.
  bool ProjectExists(const std::string& mappingFile);
  /// Whether the current project's mapping file, which was missing, unreadable or damaged when the project could not be
  /// opened, can be read wholly now.
  bool MappingAppeared();

  // For the wizards, which work on a provider project of their own.
  /// Takes that installed provider: its name, and the path of its library (empty when it is not installed).
  void SelectProvider(const std::string& name);
  /// Closes the provider project that is open and drops the provider, library included.  The only way a provider goes.
  /// Throws EAbort while a call of it is running.
  void ReleaseProvider();
  /// Writes a warning to the message window, unless it is the last one written: the menu asks again each time it opens.
  void WarnOnce(const std::string& text);
  /// The provider project of that host project, which is open, is from now on the one that the commands work on.
  void ProjectPlaced(const std::string& projectFile) { open_project_file_ = projectFile; }

  // Opening and closing of projects.
  /// Handles one notification of the host, now or when Activities() let it.
  void HandleNotification(TOTAFileNotification code, const std::string& fileName);
  void FileNotifyProjectOpen(const std::string& fileName);
  void FileNotifyProjectClose(const std::string& fileName);
  std::string GetCurrentProjectFile();

  // Menu state.
  void MainMenu() override;
  void EnableActiveMenu();
  std::string CurrentFile() const override;
  bool HasProviderProject() const override;
  std::optional<bool> HasProviderApplication() const override;

  // Messages.
  /// Shows the provider's collected texts: the error first, then the operation's own line, then the information.
  void DisplayMessages(const std::string& title, const TStateMessages& messages);
  void ViewMessages() override;
  void HideMessages();

  // Files that belong together.
  /// Appends the project's units, the project file and every companion of each; with `removeMissing` only what exists
  /// on disk stays.  Does nothing without a list.
  void AddAssociatedFiles(TStringList* list, bool removeMissing);
  /// Appends to `dest` the companions of `fileName` that are among the gathered files and are on disk (when `checkDisk`
  /// asks for that) or controlled.  A companion may then stand in `dest` twice: that is meant.  `source` is the index of
  /// the gathered files, `statuses` is parallel to them.
  void GetAssociatedFiles(const std::string& fileName, const TFileIndex& source, TStringList& dest,
                          bool checkDisk, const TStatusArray& statuses) const;

  // The file commands.  A blank name means every eligible file of the current project, otherwise that one file.
  void AddFiles(const std::string& fileName) override;
  void RemoveFiles(const std::string& fileName) override;
  void GetLatestVersion(const std::string& fileName) override;
  void CheckInFiles(const std::string& fileName) override;
  void CheckOutFiles(const std::string& fileName) override;
  void UndoCheckOut(const std::string& fileName) override;

  // The provider's own windows.
  void ShowDiff(const std::string& fileName) override;
  void ShowHistory(const std::string& fileName) override;
  void Properties(const std::string& fileName) override;
  void RunSccApp() override;
  /// Lets the provider widen or narrow the file list of a command.
  void ProviderAddRemove(TStringList& list, scc::SCCCommand command);
  /// Shows the status of a file whose view became active in the message window.
  void ViewChange(const std::string& fileName);

  // Wizards.
  void PlaceProject() override;
  void PullProjectWizard() override;
  void CommitBrowser() override;

  // Saving before and reloading after commands.
  void SaveAll();
  void ReloadProject(const std::string& projectFile);
  void ReloadFile(const std::string& fileName);
  void ReloadFiles(const TStringList& files);

  // What the commands and the wizards share.
  /// The provider project of that directory, made current.  Throws EAbort with `noProvider` without a provider list,
  /// or when no provider project matches.  Not to be kept across anything that shows a window: the host may close the
  /// project meanwhile.
  TSCCProviderProject& RequireProject(const std::string& directory, const std::string& noProvider);

  void RunCommand(std::string_view format, const std::function<void()>& command) noexcept override;
  void RunMenuOpening(std::string_view format, const std::function<void()>& refresh) noexcept override;
  /// What is running, and what may start.
  const TActivities& Activities() const { return activities_; }

  // State that menus, dialogs and the options page look at.
  TSCCProviderList* ProviderList() const { return provider_list_.get(); }
  const std::string& ProviderName() const { return provider_name_; }
  const std::string& ProviderPath() const { return provider_path_; }
  const std::string& UserName() const { return user_name_; }
  bool ProjectNotMapped() const { return project_not_mapped_; }
  TExpertMainMenuModule* Menu() const { return menu_.get(); }
  IExpertForms& Forms() const { return forms_; }
  TSourceEditorManager* SourceEditors() const { return source_editor_manager_.get(); }
  TFormEditorManager* FormEditors() const { return form_editor_manager_.get(); }
  const std::string& SourceExtension() const { return source_extension_; }
  const std::string& FormExtension() const { return form_extension_; }
  bool IsUnit(const std::string& fileName) const;
  /// Compares with both project extension fields.
  bool IsProject(const std::string& fileName) const;
  /// A project, a package or a project group.
  bool IsProjectFile(const std::string& fileName) const;

 private:
  void Create();
  void ReadProviderOption();
  void ReadUserOption();
  void ReadProviderPath();
  /// Creates the provider and opens its project, unless there is a provider.
  void PrepareProvider(const std::string& project);
  void OpenProviderProject(const std::string& fileName);
  void CloseFailedProject(const std::string& directory);
  std::string OpenProjectFile();
  void ReopenProject();
  void Handle(TOTAFileNotification code, const std::string& fileName);
  void Run(TActivity activity, std::string_view format, const std::function<void()>& body) noexcept;
  /// RequireProject for the current project's file, as the single-file commands want it.
  TSCCProviderProject& RequireCurrentProject();

  IExpertForms& forms_;
  std::unique_ptr<TProviderMessages> provider_messages_;
  std::shared_ptr<TSccIDENotifier> ide_notifier_;
  std::unique_ptr<TFormEditorManager> form_editor_manager_;
  std::unique_ptr<TSourceEditorManager> source_editor_manager_;
  std::optional<int> ide_notifier_index_;  // set once the notifier is registered; guards its removal
  std::string provider_name_;
  std::string provider_path_;
  bool project_not_mapped_ = false;
  std::string unread_mapping_;  // the file that ProjectExists could not read wholly last; empty when it could
  const std::string source_extension_ = ".pas";
  const std::string form_extension_ = ".kfm";
  const std::string project_group_extension_ = ".qvxgroup";
  // Two fields with one text, and every test asks both: packages may get an extension of their own one day.
  const std::string project_extension_ = ".qvxproj";
  const std::string package_extension_ = ".qvxproj";
  std::string user_name_;
  std::unique_ptr<TSCCProviderList> provider_list_;
  std::string open_project_file_;  // whose provider project is open; empty when none is
  std::unique_ptr<TExpertMainMenuModule> menu_;

  std::string last_warning_;
  TActivities activities_{ProviderCallInProgress};
};

/// The one expert, or nullptr before the host's main form exists.  Owned by the host once it is registered.
extern TSccExpert* aSccExpert;
