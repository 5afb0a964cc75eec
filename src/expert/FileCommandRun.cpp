#include "expert/FileCommandRun.h"

#include <algorithm>
#include <array>
#include <unordered_set>

#include "expert/CallProgress.h"
#include "expert/Edits.h"
#include "expert/FileCommandStrings.h"
#include "expert/ProjectFiles.h"
#include "expert/ProviderWindows.h"
#include "expert/SccExpertStrings.h"
#include "expert/SccSystem.h"
#include "host/Errors.h"
#include "system/Paths.h"
#include "system/System.h"

namespace kestrel::addin {

namespace {

/// Flag of the quick difference that fills the status column.  Intended as a comparison by time stamp; the API's header
/// calls this value a comparison of checksums.
constexpr scc::Long kQuickTimeDiff = 32;

struct TProbeText {
  scc::Long Code;
  TResString Text;
};
constexpr std::array kProbeTexts{
    TProbeText{scc::SCC_OK, sProbeCurrent},
    TProbeText{scc::SCC_I_FILEDIFFERS, sProbeModified},
    TProbeText{scc::SCC_E_FILENOTCONTROLLED, sProbeNotControlled},
    TProbeText{scc::SCC_E_NOTAUTHORIZED, sProbeUnauthorized},
    TProbeText{scc::SCC_E_ACCESSFAILURE, sProbeAccessFailure},
    TProbeText{scc::SCC_E_NONSPECIFICERROR, sProbeError},
    TProbeText{scc::SCC_E_FILENOTEXIST, sProbeLocalFileMissing},
};

const TResString& ProbeText(scc::Long code) {
  const auto found = std::ranges::find(kProbeTexts, code, &TProbeText::Code);
  return found == kProbeTexts.end() ? sProbeUnknown : found->Text;
}

}  // namespace

TFileCommandRun::TFileCommandRun(TCommandContext& context, const TFileCommand& command,
                                 const std::string& fileName)
    : context_(context),
      command_(command),
      fileName_(Trim(fileName).empty() ? std::string() : fileName),
      comments_(GetCurrentProjectFile()) {}

void TFileCommandRun::Execute() {
  directory_ = ExtractFileDir(GetCurrentProjectFile());
  Project();  // before anything is saved or gathered
  if (command_.SaveAllFirst) SaveAllModules();
  Gather();
  TStateMessages messages;
  const auto option = static_cast<TCommandOptions>(command_.Command);
  const bool hasOptions = Project().GetCommandOptions(option, coQuery, messages);
  SelectEligible();
  if (selected_.empty()) {
    Box(command_.Single, sNoFilesAvailable);
    throw EAbort(sNoFilesAvailable);
  }

  TFileListModel model;
  model.HelpKeyword = command_.HelpKeyword;
  FillList(model);
  if (model.Count() == 0) {
    Box(command_.List, sNoFilesAvailable);
    return;
  }
  model.Caption = command_.List;
  model.HasOptions = hasOptions;
  model.CommandKind = option;
  model.Extra = command_.Extra;
  const int result = context_.Ui.ShowFileList(context_, model);
  selected_.clear();
  if (result == mrOk) AppendTicked(model);
  if (result == mrCancel) throw EAbort(sUserCancelledDialog);
  if (selected_.empty()) return;
  if (command_.CallKind == TFileCommand::Calls::PerFileCounting)
    CallCounting();
  else
    CallTogether();
}

bool TFileCommandRun::ExecuteAtOnce() {
  directory_ = ExtractFileDir(GetCurrentProjectFile());
  Gather();
  AppendCompanions(fileName_, allIndex_, selected_, command_.OnlyExisting, statuses_);
  std::erase_if(selected_, [&](const std::string& companion) {
    return !command_.Eligible(context_.Statuses.Of(companion).value_or(scc::SCC_STATUS_INVALID));
  });
  selected_.push_back(fileName_);  // last: CallOneByOne() returns its result
  SaveSelected();
  const bool done = !selected_.empty() && SameText(selected_.back(), fileName_) && CallOneByOne();
  Reload(done);
  return done;
}

TSCCProviderProject& TFileCommandRun::Project() {
  context_.Activities.RunWaiting();
  return context_.Provider.SelectProject(directory_, command_.NoProvider);
}

void TFileCommandRun::Gather() {
  context_.Provider.RequireList(sGetFilesNoProvider);
  allFiles_ = CurrentProjectFiles(command_.OnlyExisting);
  if (command_.ProviderPopulates) {
    const TCallProgress progress(context_.Ui, command_.List, TCallProgress::Kind::Status, sGatheringFiles,
                                 allFiles_);
    ProviderAddRemove(context_, allFiles_, command_.Command);
  }
  allIndex_ = TFileIndex(allFiles_);
  TStateMessages messages;
  const TCallProgress progress(context_.Ui, command_.List, TCallProgress::Kind::Status, sAskingStatus,
                               allFiles_);
  // Files of unknown status are not offered; the message window has the reason.
  if (!context_.Statuses.Query(Project(), allFiles_, statuses_, messages))
    WriteFailure(command_.Single, messages);
}

void TFileCommandRun::SelectEligible() {
  if (!fileName_.empty()) {
    selected_ = {fileName_};
    return;
  }
  for (std::size_t i = 0; i < allFiles_.size(); ++i)
    if (command_.Eligible(statuses_[i])) selected_.push_back(allFiles_[i]);
}

void TFileCommandRun::FillList(TFileListModel& model) {
  const auto progress = context_.Ui.StartProgress(command_.List, selected_.size());
  for (const auto& file : selected_) {
    progress->Step(model.Count(), file);
    TStateMessages messages;
    model.AddFile(file, ProbeText(Project().ShowDiff(file, kQuickTimeDiff, messages)));
  }
}

void TFileCommandRun::AppendTicked(const TFileListModel& model) {
  for (std::size_t row = 0; row < model.Count(); ++row) {
    if (!model.IsChecked(row)) continue;
    auto file = model.GetFile(static_cast<int>(row));
    selected_.push_back(file);
    AppendCompanions(file, allIndex_, selected_, command_.OnlyExisting, statuses_);
  }
  keepCheckedOut_ = command_.Extra == TFileListModel::ExtraBox::KeepCheckedOut     ? model.KeepCheckedOut
                    : command_.Extra == TFileListModel::ExtraBox::CheckOutAfterAdd ? model.CheckOutAfterAdd
                                                                                   : false;
}

void TFileCommandRun::AskComment(const std::string& caption, const std::string& fileName) {
  commentPlace_ = TCommentMemory::Place(std::to_string(command_.Command), fileName);
  TCommentModel model;
  model.Caption = caption;
  model.ShowApplyToAll = !fileName.empty();
  model.Text = comments_.Pending(commentPlace_);
  model.Recent = comments_.Recent();
  const int result = context_.Ui.ShowComments(model);
  comments_.RecordTyped(commentPlace_, model.Text);
  comments_.Save();
  if (result != mrOk) {
    Box(command_.Single, sUserCancelledDialog);
    throw EAbort(sUserCancelledDialog);
  }
  comment_ = model.Text;
  applyToAll_ = model.ShowApplyToAll && model.ApplyToAll;
}

bool TFileCommandRun::WantsComment() {
  Project();  // throws if the provider has been released
  return command_.CommentCapability &&
         context_.Provider.List()->Capabilities().test(*command_.CommentCapability);
}

bool TFileCommandRun::SaveFile(const std::string& fileName) {
  return RunCatching<EAbort>([&] { SaveEdits(fileName); },
                             [this](const EAbort& failure) {
                               WriteMessage(mwtError, failure.what());
                               Box(command_.Single, failure.what(), metError);
                             });
}

bool TFileCommandRun::SaveSelected() {
  TStringList saved;
  std::unordered_set<std::string> unsaved;  // a file may be selected twice
  for (const auto& file : selected_)
    if (!unsaved.contains(file) && SaveFile(file))
      saved.push_back(file);
    else
      unsaved.insert(file);
  selected_ = std::move(saved);
  return unsaved.empty();
}

bool TFileCommandRun::CallProvider(const TStringList& files) {
  const auto [done, messages] =
      command_.Run(Project(), context_.Statuses, {files, comment_, keepCheckedOut_});
  if (done) {  // the comment has reached the provider, even if later calls fail
    comments_.RecordUsed(commentPlace_, comment_);
    comments_.Save();
  }
  context_.Log.DisplayMessages(command_.Single, messages);
  return done;
}

void TFileCommandRun::CallTogether() {
  if (WantsComment()) AskComment({}, {});
  const bool allSaved = SaveSelected();
  if (selected_.empty()) return;
  const bool done = command_.CallKind == TFileCommand::Calls::Batch ? CallBatch() : CallOneByOne();
  if (done && command_.ClearReadOnly && !keepCheckedOut_)
    for (const auto& file : selected_) SetFileAttributesOf(file, faArchive);
  Reload(done);
  if (done && allSaved) ReportDone();
}

bool TFileCommandRun::CallBatch() {
  const TCallProgress progress(context_.Ui, command_.List, TCallProgress::Kind::Command, sWaitingForProvider,
                               selected_);
  return CallProvider(selected_);
}

bool TFileCommandRun::CallOneByOne() {
  const auto progress = context_.Ui.StartProgress(command_.List, selected_.size());
  bool last = false;
  for (std::size_t i = 0; i < selected_.size(); ++i) {
    progress->Step(i, selected_[i]);
    last = CallProvider({selected_[i]});
  }
  return last;
}

void TFileCommandRun::CallCounting() {
  const auto progress = context_.Ui.StartProgress(command_.List, selected_.size());
  std::size_t done = 0;
  std::size_t succeeded = 0;
  for (const auto& file : selected_) {
    progress->Step(done++, file);
    if (!SaveFile(file)) continue;
    if (WantsComment() && !applyToAll_) AskComment(Format(sCommentsFor.Text, {ExtractFileName(file)}), file);
    if (CallProvider({file})) ++succeeded;
  }
  if (succeeded == selected_.size())
    ReportDone();
  else
    Box(command_.FinalSeveral, sNotAllFilesAdded, metError);
}

void TFileCommandRun::Reload(bool done) {
  const auto kind = command_.ReloadKind;
  if (kind == TFileCommand::Reload::Always || (kind == TFileCommand::Reload::OnSuccess && done))
    ReloadFiles(selected_);
}

void TFileCommandRun::ReportDone() {
  if (selected_.size() == 1)
    Box(command_.FinalOne, ExtractFileName(selected_.front()) + command_.OneDone.str());
  else
    Box(command_.FinalSeveral, command_.SeveralDone);
}

void TFileCommandRun::Box(const TResString& caption, const std::string& text, TMsgType kind) {
  context_.Ui.ShowMsgDialog(caption, text, kind);
}

}  // namespace kestrel::addin
