// The six file commands as one table: what differs between them, and nothing else.
#pragma once

#include <optional>
#include <string>

#include "expert/FileListModel.h"
#include "provider/sccapiintf.h"
#include "system/Text.h"

namespace kestrel::addin {

/// What one run of a command hands to the provider.
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
  /// Whether a file of that status may be acted on when the user chose no single file.
  bool (*Eligible)(scc::Long status);
  TCallResult (*Run)(TSCCProviderProject& project, const TFileCommandCall& call);
  Calls CallKind;
  std::optional<TProviderCapabilityFlags> CommentCapability =
      {};  ///< asks for a comment when the provider has it

  bool SaveAllFirst = false;
  bool OnlyExisting = false;      ///< gathers files on disk, and companions by disk instead of by status
  bool ProviderPopulates = true;  ///< lets the provider add and remove candidates
  TFileListModel::ExtraBox Extra = TFileListModel::ExtraBox::None;
  bool ClearReadOnly = false;  ///< on success sets each file to archive only, unless it is kept checked out
  Reload ReloadKind = Reload::Never;

  const char* HelpKeyword = "";  ///< empty when there is no topic
  TResString NoProvider;
  TResString Single;  ///< captions each provider call and the refusals
  TResString List;    ///< captions the file list
  // The captions of the last box are a mix of the two above, each as its command has always said it; so are the texts.
  TResString FinalOne;
  TResString FinalSeveral;
  TResString OneDone;  ///< follows the file name
  TResString SeveralDone;
};

extern const TFileCommand kAddFiles;
extern const TFileCommand kRemoveFiles;
extern const TFileCommand kGetLatestVersion;
extern const TFileCommand kCheckInFiles;
extern const TFileCommand kCheckOutFiles;
extern const TFileCommand kUndoCheckOut;

// Status rules that the menu shares with the commands.
bool CanAdd(scc::Long status);
bool CanRemove(scc::Long status);
bool CanGet(scc::Long status);
bool CanCheckIn(scc::Long status);
bool CanCheckOut(scc::Long status);
bool CanUndoCheckOut(scc::Long status);

}  // namespace kestrel::addin
