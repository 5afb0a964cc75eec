// The provider that the add-in works with: its name, library and user, the loaded provider, and the project that is open.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "expert/Activities.h"
#include "expert/FileStatuses.h"
#include "expert/MessageLog.h"
#include "provider/sccapiintf.h"

namespace kestrel::addin {

/// What the mapping file says about a project.
struct TProjectBinding {
  std::string ProjName;
  std::string AuxProjPath;
  std::string UserName;
  bool Complete = false;  ///< false: reading or writing failed half-way
};

/// User-interface thread only.  Routines that read or write settings and the mapping file report their errors as one line
/// of the message window and do not throw.
class TProviderContext {
 public:
  /// All are borrowed.  `statuses` are shown while a project is open.
  TProviderContext(TMessageLog& log, const TActivities& activities, TFileStatuses& statuses)
      : log_(log), activities_(activities), statuses_(statuses) {}
  TProviderContext(const TProviderContext&) = delete;
  TProviderContext& operator=(const TProviderContext&) = delete;
  /// Releases the provider.  The library stays loaded while one of its functions is on the stack.
  ~TProviderContext();

  const std::string& Name() const { return name_; }
  const std::string& Path() const { return path_; }  ///< of the library; empty when it is not installed
  const std::string& UserName() const { return userName_; }
  /// The loaded provider, or null.
  TSCCProviderList* List() const { return list_.get(); }
  /// The current provider project, or null.
  TSCCProviderProject* CurrentProject() const { return list_ ? list_->CurrentProject() : nullptr; }
  bool ProjectNotMapped() const { return projectNotMapped_; }
  void SetProjectNotMapped(bool notMapped) { projectNotMapped_ = notMapped; }
  /// The host project whose provider project is open; empty when none is.
  const std::string& OpenProjectFile() const { return openProjectFile_; }
  void SetOpenProjectFile(const std::string& projectFile);

  /// Throws EAbort with `noProvider` when no provider is loaded.
  TSCCProviderList& RequireList(const std::string& noProvider) const;
  /// Makes the provider project of that directory current.  Throws EAbort with `noProvider` when no provider is loaded,
  /// or when no provider project matches.  The reference does not survive a message loop: the host may close the
  /// project there.
  TSCCProviderProject& SelectProject(const std::string& directory, const std::string& noProvider) const;

  /// Reads name, path and user name from the project's mapping file; what it lacks, and everything when `projectFile` is
  /// blank, from the user's settings.
  void ReadSettings(const std::string& projectFile = {});
  /// Stores the display name of the machine's default provider in `name`; leaves it unchanged when there is none.
  static void ReadDefaultProvider(std::string& name);
  /// Chooses that installed provider; Path() becomes empty when it is not installed.
  void Select(const std::string& name, const std::optional<std::string>& userName = {});
  /// Loads the selected provider in place of the current one; false without a path.  `window` is the parent of the
  /// provider's dialogs, 0 for none.  Throws EAbort when the library cannot be loaded or the old provider not released.
  bool Create(TWindowHandle window);
  /// The same, but throws EAbort without a path.
  void Load(TWindowHandle window);
  /// Closes the open provider project and unloads the provider.  No other function unloads it.  Throws EAbort while a
  /// provider call is running.
  void Release();

  /// Whether the mapping file exists and has a section for the provider; also sets ProjectNotMapped().
  bool ProjectExists(const std::string& mappingFile);
  /// Whether `mappingFile` is the one that ProjectExists() last found missing, unreadable or damaged, and is intact now.
  bool MappingAppeared(const std::string& mappingFile) const;
  /// Reads the provider's section of the project's mapping file.  Writes `userName` into it when it has none.
  TProjectBinding ReadBinding(const std::string& projectFile, const std::string& userName) const;
  /// Stores the user name in the provider's section; false when it is blank or cannot be stored.
  bool UpdateUserName(const std::string& projectFile, const std::string& userName) const;

 private:
  void ReadProviderOption();
  void ReadUserOption();
  void ReadPath();

  TMessageLog& log_;
  const TActivities& activities_;
  TFileStatuses& statuses_;
  std::string name_;
  std::string path_;
  std::string userName_;
  std::unique_ptr<TSCCProviderList> list_;
  std::string openProjectFile_;
  std::string unreadMapping_;  // the file that ProjectExists() could not read completely; empty when it could
  bool projectNotMapped_ = false;
};

}  // namespace kestrel::addin
