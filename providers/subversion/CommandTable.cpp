#include "CommandTable.h"

#include <array>

#include "Session.h"
#include "SubversionSccStrings.h"

namespace svnscc {
namespace {

constexpr Rule kGo{Step::Go};
constexpr Rule kNothing{Step::Nothing};
constexpr Rule kUpdate{Step::Update};
constexpr Rule kSettle{Step::Settle};
constexpr Rule kForget{Step::Forget};
constexpr Rule kGiveUp{Step::GiveUp};

constexpr Rule No(scc::Long answer, const TResString& reason) { return {Step::Refuse, answer, reason.Text}; }
constexpr Rule Offered(Rule refused) { return {Step::Offer, refused.answer, refused.reason}; }

constexpr Rule kUnknown = No(scc::SCC_E_FILENOTCONTROLLED, sNotControlled);
constexpr Rule kNoFile = No(scc::SCC_E_FILENOTEXIST, sFileMissing);
constexpr Rule kNotOut = No(scc::SCC_E_NOTCHECKEDOUT, sNotCheckedOut);
constexpr Rule kKnown = No(scc::SCC_E_FILEALREADYEXISTS, sAlreadyControlled);
constexpr Rule kDeleted = No(scc::SCC_E_FILENOTCONTROLLED, sDeletedInRepository);
constexpr Rule kUnseen = No(scc::SCC_E_CHECKINCONFLICT, sNeverSeen);
constexpr Rule kAhead = No(scc::SCC_E_CHECKINCONFLICT, sCheckedInAhead);
constexpr Rule kLostAhead = No(scc::SCC_E_CHECKINCONFLICT, sLostConflict);
constexpr Rule kMarks = No(scc::SCC_E_FIXMERGE, sConflictMarks);
constexpr Rule kOpen = No(scc::SCC_E_FIXMERGE, sOpenConflict);
constexpr Rule kLost = No(scc::SCC_E_FIXMERGE, sLostConflict);
constexpr Rule kOfferOpen = Offered(kOpen);
constexpr Rule kOfferLost = Offered(kLost);
constexpr Rule kMakeRoom{Step::MakeRoom};
constexpr Rule kAdopt{Step::Adopt, scc::SCC_E_OPNOTPERFORMED, sInTheWay.Text};

struct Row {
  FileState state;
  Rule get, checkOut, checkIn, undo, add, remove;
};

// Check-in and undo also need the lock, which Remove must not find.  A conflict and a deletion in the repository can be
// given up without it: nobody can get it any more.  A client may offer undo for what is locked only, so get and check-out
// ask about it, too.
constexpr std::array kRows{
    // state                get        check-out  check-in    undo      add       remove
    Row{FileState::Nowhere, kUnknown, kUnknown, kNoFile, kUnknown, kNoFile, kUnknown},
    Row{FileState::Loose, kUnknown, kUnknown, kUnknown, kUnknown, kGo, kUnknown},
    Row{FileState::NotFetched, kUpdate, kUpdate, kNoFile, kNotOut, kNoFile, kUpdate},
    Row{FileState::InTheWay, kMakeRoom, kAdopt, kNotOut, kNotOut, kKnown, kUnseen},
    Row{FileState::Current, kNothing, kGo, kGo, kGo, kKnown, kGo},
    Row{FileState::Edited, kNothing, kGo, kGo, kGo, kKnown, kGo},
    Row{FileState::Old, kUpdate, kUpdate, kGo, kGo, kKnown, kUnseen},
    Row{FileState::Diverged, kUpdate, kUpdate, kAhead, kGo, kKnown, kUnseen},
    Row{FileState::Missing, kUpdate, kUpdate, kNoFile, kGo, kNoFile, kGo},
    Row{FileState::Gone, kUpdate, kDeleted, kGo, kGo, kForget, kDeleted},
    Row{FileState::GoneEdited, kOfferLost, kDeleted, kLostAhead, kGiveUp, kForget, kDeleted},
    Row{FileState::Merged, kSettle, kSettle, kSettle, kGiveUp, kKnown, kSettle},
    Row{FileState::Marked, kMarks, kGo, kMarks, kGiveUp, kKnown, kMarks},
    Row{FileState::Open, kOfferOpen, kOfferOpen, kOpen, kGiveUp, kKnown, kOpen},
    Row{FileState::Lost, kOfferLost, kLost, kLost, kGiveUp, kForget, kLost},
};

constexpr bool IsInOrder() {
  for (std::size_t i = 0; i < kRows.size(); ++i)
    if (kRows[i].state != static_cast<FileState>(i)) return false;
  return kRows.size() == static_cast<std::size_t>(FileState::Lost) + 1;
}
static_assert(IsInOrder());

FileState StateOf(Conflict conflict) {
  switch (conflict) {
    case Conflict::Marked:
      return FileState::Marked;
    case Conflict::Edited:
      return FileState::Merged;
    case Conflict::Lost:
      return FileState::Lost;
    default:
      return FileState::Open;
  }
}

}  // namespace

Rule RuleFor(FileState state, Command command) {
  const Row& row = kRows.at(static_cast<std::size_t>(state));
  switch (command) {
    case Command::Get:
      return row.get;
    case Command::CheckOut:
      return row.checkOut;
    case Command::CheckIn:
      return row.checkIn;
    case Command::Undo:
      return row.undo;
    case Command::Add:
      return row.add;
    default:
      return row.remove;
  }
}

Step Require(FileState state, Command command) {
  const Rule rule = RuleFor(state, command);
  if (rule.step == Step::Refuse || rule.step == Step::Offer) throw Failure(rule.answer, rule.reason);
  return rule.step;
}

FileState StateOf(const LocalStatus& local) {
  if (local.IsConflicted()) return StateOf(local.Kind);
  switch (local.State) {
    case LocalState::Absent:
      return FileState::Nowhere;
    case LocalState::Unversioned:
    case LocalState::Added:
      return FileState::Loose;
    case LocalState::Missing:
      return FileState::Missing;
    default:
      return local.Modified ? FileState::Edited : FileState::Current;
  }
}

FileState StateOf(const Session& session, const std::string& path, const FileStatus& status) {
  const auto has = [&](scc::Long bit) { return (status.Bits & bit) != 0; };
  if (has(scc::SCC_STATUS_MERGED)) return StateOf(AskLocal(session, path));
  if (status.Bits == 0) return IsOnDisk(path) ? FileState::Loose : FileState::Nowhere;
  if (!status.IsHere) return IsOnDisk(path) ? FileState::InTheWay : FileState::NotFetched;
  const bool edited = has(scc::SCC_STATUS_MODIFIED);
  if (has(scc::SCC_STATUS_DELETED)) return edited ? FileState::GoneEdited : FileState::Gone;
  if (has(scc::SCC_STATUS_OUTOFDATE)) return edited ? FileState::Diverged : FileState::Old;
  if (status.NeedsGet) return FileState::Missing;
  return edited ? FileState::Edited : FileState::Current;
}

Survey::Survey(Session& session, const std::vector<std::string>& paths)
    : session_(session), alone_(paths.size() == 1) {
  if (alone_) {
    walked_.Put(paths.front(), AskStatus(session, paths.front()));
  } else if (!paths.empty()) {
    walked_ = WalkProject(session);
    result_ = walked_.Result;
  }
}

FileStatus Survey::StatusOf(const std::string& path) const { return walked_.Of(path); }

}  // namespace svnscc
