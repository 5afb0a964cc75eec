// One run of a file command: gather, ask the provider, let the user pick, call the provider, reload, report.
#pragma once

#include <string>

#include "expert/CommentMemory.h"
#include "expert/FileCommands.h"
#include "expert/FileIndex.h"
#include "expert/SccExpert.h"

/// Used once and thrown away.  Execute() throws EAbort when the command cannot go on.
///
/// Between its steps dialogs run message loops in which the host may close the project: the provider project is looked
/// up again before every call.
class TFileCommandRun {
 public:
  TFileCommandRun(TSccExpert& expert, const TFileCommand& command, const std::string& fileName);
  void Execute();

 private:
  TSCCProviderProject& Project();
  void Gather();
  void SelectEligible();
  void FillList(TFileListModel& model);
  void TakeTicked(const TFileListModel& model);
  bool WantsComment();
  /// For one file, if it is named, with the box that makes the comment serve the others, too.  Throws EAbort when the
  /// user cancels.
  void AskComment(const std::string& caption, const std::string& fileName);
  /// Puts what the editor shows of the file on disk; false, with the reason shown, when that fails.
  bool SaveFile(const std::string& fileName);
  /// The same for all selected files; those that cannot be saved are selected no more.  Whether all were saved.
  bool SaveSelected();
  /// Calls the provider for these files and shows what it says.
  bool CallProvider(const TStringList& files);
  /// All commands but add: one comment, everything saved first, then the files in one call or one by one.  A run that
  /// left a file out reports no success.
  void CallTogether();
  bool CallBatch();
  /// The result of the last call decides, and it alone, which is meant: earlier failures have shown their messages, and
  /// the report closes the run as the last file did.
  bool CallOneByOne();
  /// Add: each file is saved, given its comment and added alone; the count of successes decides about the report.
  /// Nothing is reloaded: adding changes no file.
  void CallCounting();
  void Reload(bool done);
  void ReportDone();
  void Box(const TResString& caption, const std::string& text, TMsgType kind = metInfo);

  TSccExpert& expert_;
  const TFileCommand& command_;
  const std::string file_name_;
  std::string directory_;
  TStringList all_files_;
  TFileIndex all_index_;
  TStringList selected_;
  TStatusArray statuses_;
  TCommentMemory comments_;
  std::string comment_;
  std::string comment_place_;  // where it was typed
  bool apply_to_all_ = false;
  bool keep_checked_out_ = false;
};
