#include "subversion/commands/CommandTable.h"

#include <algorithm>
#include <array>

#include "subversion/commands/CommandStrings.h"
#include "subversion/svn/ProviderContext.h"
#include "subversion/svn/SvnStrings.h"

namespace kestrel::svnscc {
namespace {

constexpr Rule kProceed{Step::Proceed};
constexpr Rule kNothing{Step::Nothing};
constexpr Rule kUpdate{Step::Update};
constexpr Rule kResolve{Step::Resolve};
constexpr Rule kDrop{Step::Drop};
constexpr Rule kAcceptRepository{Step::AcceptRepository};

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
constexpr Rule kMoveObstruction{Step::MoveObstruction};
constexpr Rule kAdopt{Step::Adopt, scc::SCC_E_OPNOTPERFORMED, sInTheWay.Text};

struct Row {
  FileState state;
  Rule get, checkOut, checkIn, undo, add, remove;
};

// Check-in and undo also require the lock; Remove requires that there is none.  Undo of a conflict or of a deletion in the
// repository does not, as it cannot be obtained any more.  A client may offer undo for locked files only, so get and
// check-out offer the same.
constexpr std::array kRows{
    // state                get        check-out  check-in    undo      add       remove
    Row{FileState::Nowhere, kUnknown, kUnknown, kNoFile, kUnknown, kNoFile, kUnknown},
    Row{FileState::Loose, kUnknown, kUnknown, kUnknown, kUnknown, kProceed, kUnknown},
    Row{FileState::NotFetched, kUpdate, kUpdate, kNoFile, kNotOut, kNoFile, kUpdate},
    Row{FileState::InTheWay, kMoveObstruction, kAdopt, kNotOut, kNotOut, kKnown, kUnseen},
    Row{FileState::Current, kNothing, kProceed, kProceed, kProceed, kKnown, kProceed},
    Row{FileState::Edited, kNothing, kProceed, kProceed, kProceed, kKnown, kProceed},
    Row{FileState::Old, kUpdate, kUpdate, kProceed, kProceed, kKnown, kUnseen},
    Row{FileState::Diverged, kUpdate, kUpdate, kAhead, kProceed, kKnown, kUnseen},
    Row{FileState::Missing, kUpdate, kUpdate, kNoFile, kProceed, kNoFile, kProceed},
    Row{FileState::Gone, kUpdate, kDeleted, kProceed, kProceed, kDrop, kDeleted},
    Row{FileState::GoneEdited, kOfferLost, kDeleted, kLostAhead, kAcceptRepository, kDrop, kDeleted},
    Row{FileState::Merged, kResolve, kResolve, kResolve, kAcceptRepository, kKnown, kResolve},
    Row{FileState::Marked, kMarks, kProceed, kMarks, kAcceptRepository, kKnown, kMarks},
    Row{FileState::Open, kOfferOpen, kOfferOpen, kOpen, kAcceptRepository, kKnown, kOpen},
    Row{FileState::Lost, kOfferLost, kLost, kLost, kAcceptRepository, kDrop, kLost},
};

constexpr bool IsInOrder() {
  for (std::size_t i = 0; i < kRows.size(); ++i)
    if (kRows[i].state != static_cast<FileState>(i)) return false;
  return kRows.size() == static_cast<std::size_t>(FileState::Lost) + 1;
}
static_assert(IsInOrder());

/// A unit and its form are two files.
constexpr std::size_t kFew = 2;

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

FileState StateOf(const ProviderContext& context, const std::string& path, const FileStatus& status) {
  const auto has = [&](scc::Long bit) { return (status.Bits & bit) != 0; };
  if (has(scc::SCC_STATUS_MERGED)) return StateOf(ReadLocalStatus(context, path));
  if (status.Bits == 0) return IsOnDisk(path) ? FileState::Loose : FileState::Nowhere;
  if (!status.IsHere) return IsOnDisk(path) ? FileState::InTheWay : FileState::NotFetched;
  const bool edited = has(scc::SCC_STATUS_MODIFIED);
  if (has(scc::SCC_STATUS_DELETED)) return edited ? FileState::GoneEdited : FileState::Gone;
  if (has(scc::SCC_STATUS_OUTOFDATE)) return edited ? FileState::Diverged : FileState::Old;
  if (status.NeedsGet) return FileState::Missing;
  return edited ? FileState::Edited : FileState::Current;
}

Survey::Survey(ProviderContext& context, const std::vector<std::string>& paths)
    : context_(context), isWalk_(paths.size() > kFew) {
  if (isWalk_) {
    statuses_ = WalkProject(context);
    result_ = statuses_.Result;
  } else {
    for (const auto& path : paths) statuses_.Put(path, FetchStatus(context, path));
  }
}

FileStatus Survey::StatusOf(const std::string& path) const { return statuses_.Of(path); }

bool Survey::AreAllStale(std::vector<std::string> paths) const {
  if (!isWalk_) return false;
  std::sort(paths.begin(), paths.end());
  const auto files = statuses_.Files();
  return std::all_of(files.begin(), files.end(), [&](const std::string& file) {
    return !statuses_.Of(file).NeedsGet || std::binary_search(paths.begin(), paths.end(), file);
  });
}

}  // namespace kestrel::svnscc
