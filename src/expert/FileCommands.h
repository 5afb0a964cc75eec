// The six file commands as one table of their differences.
#pragma once

#include <optional>
#include <string>

#include "expert/FileListModel.h"
#include "expert/FileStatuses.h"
#include "provider/sccapiintf.h"
#include "system/Text.h"

namespace kestrel::addin {

/// The arguments of a command's provider call.
struct TFileCommandCall {
  TStringList Files;
  std::string Comment;
  bool KeepCheckedOut;  ///< the state of the command's extra box
};

/// How a provider call ended.
struct TCallResult {
  bool Done = false;
  TStateMessages Messages;
};

struct TFileCommand {
  enum class Calls { Batch, PerFile, PerFileCounting };
  enum class Reload { Never, OnSuccess, Always };

  scc::SCCCommand Command;
  /// Whether a command on the whole project offers a file of that status.
  bool (*Eligible)(scc::Long status);
  bool (*Call)(TSCCProviderProject& project, const TFileCommandCall& call, TStateMessages& messages);
  /// The status of a file after a call that succeeded.
  scc::Long (*StatusAfter)(scc::Long before, bool keepCheckedOut);
  Calls CallKind;
  std::optional<TProviderCapabilityFlags> CommentCapability =
      {};  ///< asks for a comment if the provider has this capability

  bool SaveAllFirst = false;
  bool OnlyExisting = false;      ///< gathers only files on disk; companions too
  bool ProviderPopulates = true;  ///< asks the provider to add and remove candidates
  TFileListModel::ExtraBox Extra = TFileListModel::ExtraBox::None;
  bool ClearReadOnly = false;  ///< sets files to archive only on success, unless kept checked out
  Reload ReloadKind = Reload::Never;

  const char* HelpKeyword = "";  ///< empty when there is no topic
  TResString NoProvider;
  TResString Single;  ///< caption of provider messages and refusals
  TResString List;    ///< caption of the file list
  // Caption and text of the last box; inconsistent between commands, kept for compatibility.
  TResString FinalOne;
  TResString FinalSeveral;
  TResString OneDone;  ///< follows the file name
  TResString SeveralDone;

  /// Calls the provider; records in `statuses` what that changed, or that it is unknown after a failure.
  TCallResult Run(TSCCProviderProject& project, TFileStatuses& statuses, const TFileCommandCall& call) const;
};

extern const TFileCommand kAddFiles;
extern const TFileCommand kRemoveFiles;
extern const TFileCommand kGetLatestVersion;
extern const TFileCommand kCheckInFiles;
extern const TFileCommand kCheckOutFiles;
extern const TFileCommand kUndoCheckOut;

// Status rules, shared by menu and commands.
bool CanAdd(scc::Long status);
bool CanRemove(scc::Long status);
bool CanGet(scc::Long status);
bool CanCheckIn(scc::Long status);
bool CanCheckOut(scc::Long status);
bool CanUndoCheckOut(scc::Long status);

}  // namespace kestrel::addin
