#include "expert/FileCommands.h"

#include "expert/FileCommandStrings.h"
#include "expert/SccExpertStrings.h"
#include "ui/ExpertMainMenuStrings.h"

namespace kestrel::addin {

namespace {

using namespace scc;
using enum TFileCommand::Calls;
using enum TFileCommand::Reload;
using ExtraBox = TFileListModel::ExtraBox;

// A status of -1 (no information) has all bits set: such a file may be added, fetched, checked in and undone, but not
// removed or checked out; intentional.
constexpr bool All(Long status, Long bits) { return (status & bits) == bits; }
constexpr bool None(Long status, Long bits) { return (status & bits) == 0; }

constexpr Long kOutToMe = SCC_STATUS_CONTROLLED | SCC_STATUS_CHECKEDOUT | SCC_STATUS_OUTBYUSER;
constexpr Long StoredOrOut(Long, bool keepCheckedOut) {
  return keepCheckedOut ? kOutToMe : Long{SCC_STATUS_CONTROLLED};
}

}  // namespace

TCallResult TFileCommand::Run(TSCCProviderProject& project, TFileStatuses& statuses,
                              const TFileCommandCall& call) const {
  TCallResult result;
  result.Done = Call(project, call, result.Messages);
  // Nobody knows what a call that failed has changed, such as a get that ended in a conflict.
  statuses.Apply(call.Files, [&](Long before) {
    return result.Done ? StatusAfter(before, call.KeepCheckedOut) : Long{SCC_STATUS_INVALID};
  });
  return result;
}

bool CanAdd(Long status) { return status == SCC_STATUS_NOTCONTROLLED || All(status, SCC_STATUS_DELETED); }
bool CanRemove(Long status) { return All(status, SCC_STATUS_CONTROLLED) && None(status, SCC_STATUS_DELETED); }
bool CanGet(Long status) { return All(status, SCC_STATUS_CONTROLLED); }
bool CanCheckIn(Long status) { return All(status, kOutToMe); }
// A file that another user has out, but not exclusively, may be checked out.
bool CanCheckOut(Long status) {
  return All(status, SCC_STATUS_CONTROLLED) && None(status, SCC_STATUS_OUTBYUSER | SCC_STATUS_DELETED) &&
         !All(status, SCC_STATUS_OUTOTHER | SCC_STATUS_OUTEXCLUSIVE);
}
bool CanUndoCheckOut(Long status) { return All(status, SCC_STATUS_OUTBYUSER | SCC_STATUS_CHECKEDOUT); }

const TFileCommand kAddFiles{
    .Command = SCC_COMMAND_ADD,
    .Eligible = CanAdd,
    .Call = [](auto& p, auto& c, auto& m) { return p.AddFile(c.Files, c.Comment, c.KeepCheckedOut, m); },
    .StatusAfter = StoredOrOut,
    .CallKind = PerFileCounting,
    .CommentCapability = pcCommentAdd,
    .SaveAllFirst = true,
    .OnlyExisting = true,
    .ProviderPopulates = false,
    .Extra = ExtraBox::CheckOutAfterAdd,
    .HelpKeyword = "HC_TeamAddFiles",
    .NoProvider = sAddFilesNoProvider,
    .Single = sAddFile,
    .List = sAddFiles,
    .FinalOne = sAddFile,
    .FinalSeveral = sAddFile,
    .OneDone = sAddFileSucceeded,
    .SeveralDone = sAddFilesSucceeded,
};

// Never asks for a comment: a removal is commented with its date.
const TFileCommand kRemoveFiles{
    .Command = SCC_COMMAND_REMOVE,
    .Eligible = CanRemove,
    .Call = [](auto& p, auto& c, auto& m) { return p.RemoveFile(c.Files, m); },
    .StatusAfter = [](Long, bool) { return Long{SCC_STATUS_NOTCONTROLLED}; },
    .CallKind = Batch,
    .HelpKeyword = "HC_TeamRemoveFiles",
    .NoProvider = sRemoveFilesNoProvider,
    .Single = sRemoveFile,
    .List = sRemoveFiles,
    .FinalOne = sRemoveFile,
    .FinalSeveral = sRemoveFile,
    .OneDone = sRemoveFileSucceeded,
    .SeveralDone = sRemoveFilesSucceeded,
};

const TFileCommand kGetLatestVersion{
    .Command = SCC_COMMAND_GET,
    .Eligible = CanGet,
    .Call = [](auto& p, auto& c, auto& m) { return p.GetFile(c.Files, m) == SCC_OK; },
    .StatusAfter = [](Long before, bool) { return before & ~SCC_STATUS_OUTOFDATE; },
    .CallKind = Batch,
    .ReloadKind = OnSuccess,
    .NoProvider = sGetFilesNoProvider,
    .Single = sGetFile,
    .List = sGetLatestVersion,
    .FinalOne = sGetLatestVersion,
    .FinalSeveral = sGetLatestVersion,
    .OneDone = sGetFileSucceeded,
    .SeveralDone = sGetFilesSucceeded,
};

const TFileCommand kCheckInFiles{
    .Command = SCC_COMMAND_CHECKIN,
    .Eligible = CanCheckIn,
    .Call = [](auto& p, auto& c, auto& m) { return p.CheckInFile(c.Files, c.Comment, c.KeepCheckedOut, m); },
    .StatusAfter = StoredOrOut,
    .CallKind = Batch,
    .CommentCapability = pcCommentCheckIn,
    .SaveAllFirst = true,
    .Extra = ExtraBox::KeepCheckedOut,
    .ClearReadOnly = true,
    .ReloadKind = OnSuccess,
    .HelpKeyword = "HC_TeamCheckInFiles",
    .NoProvider = sCheckInFilesNoProvider,
    .Single = sCheckInFile,
    .List = sCheckInFiles,
    .FinalOne = sCheckInFile,
    .FinalSeveral = sCheckInFiles,
    .OneDone = sCheckInFileSucceeded,
    .SeveralDone = sCheckInFilesSucceeded,
};

const TFileCommand kCheckOutFiles{
    .Command = SCC_COMMAND_CHECKOUT,
    .Eligible = CanCheckOut,
    .Call = [](auto& p, auto& c, auto& m) { return p.CheckOutFile(c.Files, c.Comment, m); },
    .StatusAfter = [](Long before, bool) { return kOutToMe | (before & SCC_STATUS_MODIFIED); },
    .CallKind = PerFile,
    .CommentCapability = pcCommentCheckOut,
    .ReloadKind = Always,
    .HelpKeyword = "HC_TeamCheckOutFiles",
    .NoProvider = sCheckOutFilesNoProvider,
    .Single = sCheckOutFile,
    .List = sCheckOutFiles,
    .FinalOne = sCheckOutFile,
    .FinalSeveral = sCheckOutFiles,
    .OneDone = sCheckOutFileSucceeded,
    .SeveralDone = sCheckOutFilesSucceeded,
};

const TFileCommand kUndoCheckOut{
    .Command = SCC_COMMAND_UNCHECKOUT,
    .Eligible = CanUndoCheckOut,
    .Call = [](auto& p, auto& c, auto& m) { return p.UnCheckOutFile(c.Files, m); },
    .StatusAfter = [](Long, bool) { return Long{SCC_STATUS_CONTROLLED}; },
    .CallKind = Batch,
    .ClearReadOnly = true,
    .ReloadKind = OnSuccess,
    .HelpKeyword = "HC_TeamUndoCheckOut",
    .NoProvider = sUndoCheckOutNoProvider,
    .Single = sUndoCheckOutFile,
    .List = sUndoCheckOutFiles,
    .FinalOne = sUndoCheckOutFile,
    .FinalSeveral = sUndoCheckOutFiles,
    .OneDone = sUndoCheckOutFileSucceeded,
    .SeveralDone = sUndoCheckOutFilesSucceeded,
};

}  // namespace kestrel::addin
