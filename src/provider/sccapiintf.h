// Providers and provider projects, as the rest of the add-in sees them.
//
// These classes call foreign code that is loaded into the IDE.  Texts are passed in buffers with a canary, a missing entry
// point returns -14 (operation not supported), and an exception or, on Windows, a crash of the provider becomes an error
// text.  All calls are synchronous and made on the user-interface thread.
#pragma once

#include <array>
#include <bitset>
#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "host/Services.h"
#include "provider/BoundedText.h"
#include "scc/sccdefs.h"

namespace kestrel::addin {

// ---------------------------------------------------------------------------------------------- discovery

/// The registry layout that SCC clients share; keys are relative to the local-machine root.
inline constexpr const char* kProviderKey = "Software\\SourceCodeControlProvider";
inline constexpr const char* kInstalledProvidersKey =
    "Software\\SourceCodeControlProvider\\InstalledSCCProviders";
inline constexpr const char* kProviderRegKey = "ProviderRegKey";
inline constexpr const char* kServerName = "SccServerName";
inline constexpr const char* kServerPath = "SccServerPath";
/// Value of a provider's key, specific to this add-in: "1" if the provider's dependencies are searched in PATH as well
/// (Windows).
inline constexpr const char* kSearchPath = "CorvaneSearchPath";

/// Whether at least one provider is installed.
bool SCCProviderInstalled();
/// Reads display name and library path of the machine's default provider; missing values are empty.  Part of the package's
/// interface; no caller here.
void GetDefaultProvider(std::string& name, std::string& path);

/// Whether an installed provider with this library has kSearchPath set.
bool SearchesPath(const std::string& libraryPath);

// ---------------------------------------------------------------------------------------------- messages

/// Texts of a provider call: [0] the operation's success line, [1] an information, [2] an error; empty if there is none.
using TStateMessages = std::array<std::string, 3>;
using TStringList = std::vector<std::string>;

/// Sets all three texts from a return code.
void DecodeReturnCode(scc::Long code, TStateMessages& messages);

/// One flag per status bit; the values are bit numbers of TQueryStatus.
enum TQueryFlags {
  qsNone,
  qsNotControlled,
  qsControlled,
  qsCheckedOutByCurrentUser,
  qsCheckedOutToAnotherUser,
  qsCheckedOutExclusivelyToSomeone,
  qsCheckedOutToMultipleUsers,
  qsOutOfDate,
  qsDeletedFromProject,
  qsNoMoreVersionsAllowed,
  qsHasBeenMerged,
  qsSharedBetweenProjects,
  qsSharedToExplicitVersion,
  qsHasBeenModified,
  qsCheckedOutToCurrentUser,
};
using TQueryStatus = std::bitset<15>;

/// Part of the package's interface; no caller here.
TQueryStatus ToQueryStatus(scc::Long status);
/// Writes one information line per matching status bit to the sink.  For -1 (no information) all lines are written
/// (intentional).
void DecodeQueryStatus(const std::string& fileName, scc::Long status);

/// Maximum number of files in one query or list population.
inline constexpr std::size_t kMaxFiles = 65536;
/// Maximum number of names accepted by a list callback, in case a provider never stops calling it.
inline constexpr std::size_t kMaxPopulated = 4 * kMaxFiles;
/// Maximum length in bytes of a comment that is passed to a provider.
inline constexpr std::size_t kMaxComment = 128;
/// Whether a provider wrote past the end of a buffer: not at all, into the canary, or past the canary.
enum class TOverrun { None, Caught, Passed };
/// Status words for one call: kMaxFiles of them, followed by a canary.
class TStatusArray {
 public:
  TStatusArray();
  scc::Long* data() { return words_.data(); }
  scc::Long operator[](std::size_t i) const { return words_[i]; }
  scc::Long& operator[](std::size_t i) { return words_[i]; }

  /// Sets all words to 0.
  void Clear();
  /// Whether the words were overrun since the last call; restores the canary.
  TOverrun CheckOverrun();

 private:
  std::vector<scc::Long> words_;
};

/// How serious a line about the provider is.
enum class TSeverity { Info, Warning, Error };

/// Receives the provider's texts.  The layer above installs one; without a sink they are dropped.
class IProviderSink {
 public:
  virtual ~IProviderSink() = default;
  virtual void Line(TSeverity severity, const std::string& text) = 0;
  /// A modal box with an OK button.
  virtual void Box(const std::string& text) = 0;
};
/// Sets the sink; borrowed until replaced, null for none.  Returns the previous one.
IProviderSink* SetProviderSink(IProviderSink* sink);

/// Sets the function that a provider's own thread calls after writing a line.  It must arrange for ShowProviderLines() to
/// be called soon on the user-interface thread.  An empty function removes it.
void SetProviderWaker(std::function<void()> wake);
/// Sends the lines written by other threads to the sink.  Call on the thread that set the sink.
void ShowProviderLines() noexcept;

/// The text callback for providers.  Accepts null texts, late calls and any kind, on any thread; always returns 0.  The
/// sink receives the lines in order, truncated to kMaxTextLine bytes.
scc::Long SCC_CALL TextOutProc(const char* text, scc::Dword kind) noexcept;

/// Appends a file name that a provider passed to a list callback.  Skips null pointers, empty names and, with a warning in
/// the sink, names that cannot be passed back (see FromCodePageExact).  Returns false if `names` has kMaxPopulated
/// entries; the callback then asks the provider to stop.
bool AppendPopulatedName(const char* name, TStringList& names) noexcept;

/// Whether a provider function is on the call stack.  Providers dispatch events while they show dialogs; an event handler
/// must then not close the project or unload the library.
bool ProviderCallInProgress();

// ---------------------------------------------------------------------------------------------- projects

/// Commands that may have advanced options; the values are those of SCCCommand.
enum TCommandOptions : std::int32_t {
  coGet,
  coCheckOut,
  coCheckIn,
  coUnCheckout,
  coAdd,
  coRemove,
  coDiff,
  coHistory,
  coRename,
  coProperties,
  coOptions,
};
enum TCommandOptionFlags { coQuery, coShowAdvDialog };

/// One provider project for one local directory.  Created and owned by TSCCProviderList.
class TSCCProviderProject {
 public:
  /// `context` is the list's, which outlives the project.
  TSCCProviderProject(const std::string& localPath, TWindowHandle window, const std::string& userName,
                      void* context = nullptr);
  ~TSCCProviderProject();
  TSCCProviderProject(const TSCCProviderProject&) = delete;
  TSCCProviderProject& operator=(const TSCCProviderProject&) = delete;

  // Texts that identify the project.  The provider's buffer sizes are given in brackets, in bytes of the code page with
  // terminator.  Setters truncate to them, except for the local path: GetProjectPath and OpenProject fail if it is too
  // long.  The provider may change the texts in these two calls.
  std::string get_ProjName() const;  // [261]
  void set_ProjName(const std::string& value);
  std::string get_ProjPath() const;  // [301] the auxiliary project path
  void set_ProjPath(const std::string& value);
  std::string get_LocalPath() const;  // [261]
  void set_LocalPath(const std::string& value);
  /// Whether this is the project of that directory, compared ignoring case.
  bool IsAt(const std::string& localPath) const;
  std::string get_UserName() const;  // [33]
  void set_UserName(const std::string& value);

  // If the provider throws, its message becomes element 2 of the messages; the result is false or -15 (non-specific
  // failure), but 0 for OpenProject, whose callers must check element 2.

  /// Lets the user choose or create a provider project.  On 0 (OK) element 0 tells whether it is new.
  scc::Long GetProjectPath(TStateMessages& messages, bool mayCreate, bool mayChangePath);
  scc::Long OpenProject(TStateMessages& messages);
  /// Opens the project with another local path; get_LocalPath() is unaffected.
  scc::Long OpenProject(TStateMessages& messages, const std::string& localPath);
  bool CloseProject(TStateMessages& messages);
  /// The provider's interface version as "major.minor"; empty on failure.  Part of the package's interface; no caller here.
  std::string GetVersion();
  void Properties(const std::string& fileName, TStateMessages& messages);
  /// Part of the package's interface; no caller here.
  void GetEvents(TStateMessages& messages);
  scc::Long RunSCC();

  /// Reads the status words of `files` into `statuses`, in the same order.  Throws EAbort for an empty list or more than
  /// kMaxFiles.
  bool Query(const TStringList& files, TStatusArray& statuses, TStateMessages& messages);

  // File commands.  They throw EAbort for an empty list (for ShowHistory a blank name); failures of the provider do not
  // throw.  Comments are truncated to kMaxComment bytes.
  bool CheckOutFile(const TStringList& files, const std::string& comment, TStateMessages& messages);
  bool AddFile(const TStringList& files, const std::string& comment, bool keepCheckedOut,
               TStateMessages& messages);
  bool CheckInFile(const TStringList& files, const std::string& comment, bool keepCheckedOut,
                   TStateMessages& messages);
  bool RemoveFile(const TStringList& files, TStateMessages& messages);
  bool UnCheckOutFile(const TStringList& files, TStateMessages& messages);
  scc::Long GetFile(const TStringList& files, TStateMessages& messages);
  scc::Long GetFilesAndDirs(const TStringList& names, TStateMessages& messages);
  scc::Long ShowDiff(const std::string& fileName, scc::Long flags, TStateMessages& messages);
  bool SilentDiff(const std::string& fileName, TStateMessages& messages);
  scc::Long ShowHistory(const std::string& fileName, TStateMessages& messages);
  /// Lets the provider add and remove names through `callback`.  `files` may be empty.  Returns whether the provider
  /// returned, with whatever code.  Throws EAbort for more than kMaxFiles.
  bool PopulateList(scc::SCCCommand command, const TStringList& files, scc::TPopListFunc callback,
                    TStatusArray& statuses, TStateMessages& messages);
  /// Like PopulateList(), for directories.
  bool PopulateDirectoriesList(scc::SCCCommand command, const TStringList& files, scc::TPopListFunc callback,
                               TStatusArray& statuses, TStateMessages& messages);
  /// coQuery: returns whether the provider has advanced options for the command.  coShowAdvDialog: shows them and returns
  /// false.
  bool GetCommandOptions(TCommandOptions command, TCommandOptionFlags flag, TStateMessages& messages);
  /// Opens the provider's browser for controlled files; a message box reports success or cancellation.
  void AddFromScc(TStateMessages& messages);

 private:
  scc::Long OpenAt(TStateMessages& messages, const TBoundedText& localPath);
  scc::Long Get(const TStringList& names, scc::Long flags, TStateMessages& messages);
  scc::Long Diff(const std::string& fileName, scc::Long flags, TStateMessages& messages);
  bool Populate(scc::SCCCommand command, const TStringList& files, scc::TPopListFunc callback,
                TStatusArray& statuses, scc::Long flags, TStateMessages& messages);
  scc::WindowHandle Window() const;
  void* Options() { return options_.data(); }

  void* context_;  // owned by the list
  TWindowHandle window_;
  TBoundedText localPath_{261};
  TBoundedText userName_{33};
  TBoundedText projName_{261};
  TBoundedText projPath_{301};
  // Commands pass the address of this block; an advanced-options dialog stores the provider's pointer in it.  It is larger
  // than one pointer, so that a provider that reads it as its own structure finds zeros.
  std::array<void*, 16> options_{};
};

/// The provider's capabilities, decoded from its capability word.
enum TProviderCapabilityFlags {
  pcReEntrant,
  pcSccRemove,
  pcSccRename,
  pcSccDiff,
  pcSccHistory,
  pcSccProperties,
  pcSccRunScc,
  pcSccGetCommandOptions,
  pcSccQueryInfo,
  pcSccGetEvents,
  pcSccGetProjPath,
  pcSccAddFromScc,
  pcSccTextOut,
  pcCommentCheckOut,
  pcCommentCheckIn,
  pcCommentAdd,
  pcCommentRemove,
  pcCommentProject,
  pcAddStoreLatest,
  pcHistoryMultiFile,
  pcSccPopulateList,
  pcSccDiffAlways,
  pcSccNoGetUI,
  pcIgnoreCase,
  pcIgnoreWhiteSpace,
};
using TProviderCapabilities = std::bitset<25>;

/// A loaded provider: library, context, capabilities and one provider project per local directory.
class TSCCProviderList {
 public:
  /// Loads and initializes the provider.  Throws EAbort if the path is blank or the library cannot be loaded, but not if
  /// SccInitialize fails.
  TSCCProviderList(const std::string& providerPath, TWindowHandle window, const std::string& userName);
  ~TSCCProviderList();
  TSCCProviderList(const TSCCProviderList&) = delete;
  TSCCProviderList& operator=(const TSCCProviderList&) = delete;

  void Add(const std::string& localPath);
  void Add(const std::string& localPath, const std::string& userName);
  /// Deletes the first project of that directory.  CurrentProject() is not updated, even if it was deleted: call
  /// SetCurrentProject() afterwards.
  void Remove(const std::string& localPath);
  bool SetCurrentProject(const std::string& localPath);
  /// Deletes all projects without closing them.
  void CloseAll();

  int GetCount() const;
  TSCCProviderProject* GetItem(int index) const;
  /// Replaces an entry and returns the previous one.  Part of the package's interface; no caller here.
  std::unique_ptr<TSCCProviderProject> PutItem(int index, std::unique_ptr<TSCCProviderProject> project);

  const TProviderCapabilities& Capabilities() const;
  TSCCProviderProject* CurrentProject() const;
  const std::string& UserName() const;
  /// The reason why SccInitialize failed; empty if it succeeded or its code has no text.
  const std::string& InitializeError() const;

 private:
  void Initialize(const std::string& providerPath);
  void SetOptions();
  void UnInitialize();

  using TProjects = std::vector<std::unique_ptr<TSCCProviderProject>>;
  TProjects::iterator Find(const std::string& localPath);

  TProjects projects_;
  void* context_ = nullptr;
  TWindowHandle window_;
  TSCCProviderProject* current_ = nullptr;
  TProviderCapabilities capabilities_;
  std::string userName_;
  std::string initializeError_;
};

}  // namespace kestrel::addin
