// One run of a file command: gather, ask the provider, let the user pick, call the provider, reload, report.
#pragma once

#include <string>

#include "expert/CommandContext.h"
#include "expert/CommentMemory.h"
#include "expert/FileCommands.h"
#include "expert/FileIndex.h"

namespace kestrel::addin {

/// For one Execute().  The name of one file, or blank for every eligible file of the current project.
class TFileCommandRun {
 public:
  TFileCommandRun(TCommandContext& context, const TFileCommand& command, const std::string& fileName);
  /// Throws EAbort when the command cannot continue.
  void Execute();
  /// For a named file: without list, comment and final box.  Includes the companions that are eligible.  Returns whether
  /// the provider succeeded for the file itself; otherwise the reason has been shown.
  bool ExecuteAtOnce();

 private:
  /// To be called before every provider call: the dialogs in between run message loops in which the host may close the
  /// project.  Runs the notifications that have waited, then selects the provider project again.
  TSCCProviderProject& Project();
  void Gather();
  void SelectEligible();
  void FillList(TFileListModel& model);
  void AppendTicked(const TFileListModel& model);
  bool WantsComment();
  /// With a file name the dialog is for that file and offers to use the comment for the rest.  Throws EAbort when the
  /// user cancels.
  void AskComment(const std::string& caption, const std::string& fileName);
  /// Saves the file's unsaved changes; on failure shows the reason and returns false.
  bool SaveFile(const std::string& fileName);
  /// The same for all selected files; deselects those that cannot be saved.  Returns whether all were saved.
  bool SaveSelected();
  /// Calls the provider for these files and shows its messages.  Returns whether it succeeded.
  bool CallProvider(const TStringList& files);
  /// All commands but add: one comment, all files saved first, then one call or one call per file.  Reports success
  /// only if no file was left out.
  void CallTogether();
  bool CallBatch();
  /// Returns the result of the last call only; intentional: earlier failures have shown their messages.
  bool CallOneByOne();
  /// Add: one comment and one call per file; the report depends on the number of successes.  Adding changes no file, so
  /// nothing is reloaded.
  void CallCounting();
  void Reload(bool done);
  void ReportDone();
  void Box(const TResString& caption, const std::string& text, TMsgType kind = metInfo);

  TCommandContext& context_;
  const TFileCommand& command_;
  const std::string fileName_;
  std::string directory_;
  TStringList allFiles_;
  TFileIndex allIndex_;
  TStringList selected_;
  TStatusArray statuses_;
  TCommentMemory comments_;
  std::string comment_;
  std::string commentPlace_;  // key in TCommentMemory
  bool applyToAll_ = false;
  bool keepCheckedOut_ = false;
};

}  // namespace kestrel::addin
