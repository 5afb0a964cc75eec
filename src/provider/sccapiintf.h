// Providers, their sessions and their answers, as the rest of the add-in sees them.
//
// Everything behind these classes is somebody else's code loaded into the IDE, so this is the border: texts cross it in
// guarded copies, a missing entry point answers -14 (operation not supported), and an exception or, on Windows,
// a crash of the provider becomes an error text.  All calls are synchronous and made on the user-interface thread.
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

/// The registry layout that programs share; keys are relative to the local-machine root.
inline constexpr const char* kProviderKey = "Software\\SourceCodeControlProvider";
inline constexpr const char* kInstalledProvidersKey =
    "Software\\SourceCodeControlProvider\\InstalledSCCProviders";
inline constexpr const char* kProviderRegKey = "ProviderRegKey";
inline constexpr const char* kServerName = "SccServerName";
inline constexpr const char* kServerPath = "SccServerPath";
/// Value of a provider's key that other programs do not know: "1" when the provider's own dependencies are searched for
/// in PATH, too (Windows).
inline constexpr const char* kSearchPath = "CorvaneSearchPath";

/// Whether at least one provider is installed.
bool SCCProviderInstalled();
/// Display name and library path of the machine's default provider; what is missing comes back empty.
void GetDefaultProvider(std::string& name, std::string& path);

/// Whether a provider that is installed with this library has that mark.
bool SearchesPath(const std::string& libraryPath);

// ---------------------------------------------------------------------------------------------- messages

/// Filled after every provider call: [0] the operation's own success line, [1] an informational text, [2] an error.
using TStateMessages = std::array<std::string, 3>;
using TStringList = std::vector<std::string>;

/// Fills all three texts from a return code.
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

TQueryStatus ToQueryStatus(scc::Long status);
/// Writes one information line per matching status bit of the file to the message sink.  -1 (no information) writes
/// its own line and all bit lines too: that is meant.
void DecodeQueryStatus(const std::string& fileName, scc::Long status);

/// The most files that one query or list population may carry.
inline constexpr std::size_t kMaxFiles = 65536;
/// Of the names that a list callback takes: a provider that never stops calling must not eat the IDE's memory.
inline constexpr std::size_t kMaxPopulated = 4 * kMaxFiles;
/// The most bytes of a comment that a provider is handed.
inline constexpr std::size_t kMaxComment = 128;
/// Whether a provider wrote past the end of what it was given, and whether the guard behind it was large enough.
enum class TOverrun { None, Caught, Passed };
/// Caller-owned status words, one per file; always kMaxFiles of them, and a guard behind.
class TStatusArray {
 public:
  TStatusArray();
  scc::Long* data() { return words_.data(); }
  scc::Long operator[](std::size_t i) const { return words_[i]; }
  scc::Long& operator[](std::size_t i) { return words_[i]; }

  /// Sets all words to 0.
  void Clear();
  /// Whether somebody wrote behind the words since the last time; repairs the guard.
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
/// Borrowed until replaced; nullptr removes it.  Returns the one before.
IProviderSink* SetProviderSink(IProviderSink* sink);

/// What a provider's own thread calls when it has written a line: arranges that ShowProviderLines() is called soon.  An
/// empty one: nobody.
void SetProviderWaker(std::function<void()> wake);
/// Sends the lines that have been written from other threads to the sink.  For the thread that installed the sink, the
/// user interface's.
void ShowProviderLines() noexcept;

/// The callback handed to providers.  Tolerates null texts, late calls and any kind, from any thread; always returns 0.
/// The sink gets the lines in their order, cut where they are too long to be read.
scc::Long SCC_CALL TextOutProc(const char* text, scc::Dword kind) noexcept;

/// Appends to `taken` a file name that a provider gave a list callback.  Leaves out null pointers, empty names and, with a
/// warning in the sink, names that could not be passed back to it (see FromCodePageExact).  False when `taken` is full, that
/// is, has kMaxPopulated names: the callback then asks the provider to stop.
bool AppendPopulatedName(const char* name, TStringList& taken) noexcept;

/// Whether a provider function is on the call stack.  A provider may pump messages in its dialogs; whoever is called
/// then must not close a project or unload the library.
bool ProviderCallInProgress();

// ---------------------------------------------------------------------------------------------- sessions

/// Commands whose options can be asked for; equal to SCCCommand.
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

/// One provider project bound to one local directory.  Created and owned by TSCCProviderList.
class TSCCProviderProject {
 public:
  TSCCProviderProject(const std::string& localPath, TWindowHandle window, const std::string& userName);
  ~TSCCProviderProject();
  TSCCProviderProject(const TSCCProviderProject&) = delete;
  TSCCProviderProject& operator=(const TSCCProviderProject&) = delete;

  // Identity texts.  Each is a buffer of the size in brackets (bytes as the provider reads them); a setter copies what
  // fits, a getter returns the text up to its terminator.  The provider may rewrite them in GetProjectPath and
  // OpenProject.  Only a local path is never cut: too long, it makes those two fail.
  std::string get_ProjName() const;  // [261]
  void set_ProjName(const std::string& value);
  std::string get_ProjPath() const;  // [301] the auxiliary project path
  void set_ProjPath(const std::string& value);
  std::string get_LocalPath() const;  // [261]
  void set_LocalPath(const std::string& value);
  std::string get_UserName() const;  // [33]
  void set_UserName(const std::string& value);

  // When the provider lets an exception out, its message becomes element 2 of the messages, booleans are false, and
  // codes are -15 (non-specific failure); only OpenProject still answers 0, so look at element 2 there.

  /// Lets the user choose or create a provider project.  On 0 (OK) element 0 tells which of the two it was.
  scc::Long GetProjectPath(TStateMessages& messages, bool mayCreate, bool mayChangePath);
  scc::Long OpenProject(TStateMessages& messages);
  /// The same with another local path, which leaves the session's own untouched.
  scc::Long OpenProject(TStateMessages& messages, const std::string& localPath);
  bool CloseProject(TStateMessages& messages);
  /// "major.minor" of the provider's interface; empty when it does not tell.
  std::string GetVersion();
  void Properties(const std::string& fileName, TStateMessages& messages);
  void GetEvents(TStateMessages& messages);
  scc::Long RunSCC();

  /// Status words of `files` into `statuses`, in order.  Throws EAbort for an empty list or more than kMaxFiles.
  bool Query(const TStringList& files, TStatusArray& statuses, TStateMessages& messages);

  // File commands.  All throw EAbort for an empty list (a blank name for the history) before the provider is called;
  // provider results never throw.  Comments are cut at kMaxComment bytes.
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
  /// Lets the provider widen or narrow the list through `callback`.  True whatever its code; at most kMaxFiles files,
  /// none allowed.  Throws EAbort for more.
  bool PopulateList(scc::SCCCommand command, const TStringList& files, scc::TPopListFunc callback,
                    TStatusArray& statuses, TStateMessages& messages);
  /// The same for names of directories.
  bool PopulateDirectoriesList(scc::SCCCommand command, const TStringList& files, scc::TPopListFunc callback,
                               TStatusArray& statuses, TStateMessages& messages);
  /// coQuery: whether the provider has advanced options for the command.  coShowAdvDialog: shows them; false.
  bool GetCommandOptions(TCommandOptions command, TCommandOptionFlags flag, TStateMessages& messages);
  /// Opens the provider's browser for files under control; a box tells how it ended.
  void AddFromScc(TStateMessages& messages);

 private:
  friend class TSCCProviderList;

  scc::Long OpenAt(TStateMessages& messages, const TBoundedText& localPath);
  scc::Long Get(const TStringList& names, scc::Long flags, TStateMessages& messages);
  scc::Long Diff(const std::string& fileName, scc::Long flags, TStateMessages& messages);
  bool Populate(scc::SCCCommand command, const TStringList& files, scc::TPopListFunc callback,
                TStatusArray& statuses, scc::Long flags, TStateMessages& messages);
  scc::WindowHandle Window() const;
  void* Options() { return options_.data(); }

  void* context_ = nullptr;  // the list's; it outlives the session
  TWindowHandle window_;
  TBoundedText localPath_{261};
  TBoundedText userName_{33};
  TBoundedText projName_{261};
  TBoundedText projPath_{301};
  // Commands pass the address of this block, and an advanced-options dialog stores the provider's pointer in it.  The
  // API's authors meant four bytes; a pointer has eight here, and a provider that takes the block for its own
  // structure reads zeros instead of whatever lies behind.
  std::array<void*, 16> options_{};
};

/// What a provider can do, decoded from its capability word.
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

/// Owner of one loaded provider: library, context, capabilities and one session per local directory.
class TSCCProviderList {
 public:
  /// Throws EAbort when the path is blank or nothing loadable; a failing SccInitialize does not throw.
  TSCCProviderList(const std::string& providerPath, TWindowHandle window, const std::string& userName);
  ~TSCCProviderList();
  TSCCProviderList(const TSCCProviderList&) = delete;
  TSCCProviderList& operator=(const TSCCProviderList&) = delete;

  void Add(const std::string& localPath);
  void Add(const std::string& localPath, const std::string& userName);
  /// Frees the first session of that directory.  Does not touch the current project, even if it was the one freed:
  /// call SetCurrentProject afterwards.
  void Remove(const std::string& localPath);
  bool SetCurrentProject(const std::string& localPath);
  /// Frees all sessions without closing their projects.
  void CloseAll();

  int GetCount() const;
  TSCCProviderProject* GetItem(int index) const;
  /// Replaces the entry; the one replaced is handed back to the caller.
  std::unique_ptr<TSCCProviderProject> PutItem(int index, std::unique_ptr<TSCCProviderProject> project);

  const TProviderCapabilities& Capabilities() const;
  TSCCProviderProject* CurrentProject() const;
  const std::string& UserName() const;
  /// Why the provider did not start; empty when it did, or when its code says nothing about that.
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
