// The rows of the commit browser: all files of the project with status and suggested activity.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "provider/sccapiintf.h"

namespace kestrel::addin {

struct TCommandContext;

/// An operation on one file.  The values are the item indexes of the drop-down list.
enum TCommitActivity : std::uint8_t {
  caNone,
  caCommit,
  caCheckout,
  caUndo,
  caAdd,
  caRemove,
  caGetLatest,
};
inline constexpr int kCommitActivities = caGetLatest + 1;
/// The activity's name for the user; "Activity Error" for a value outside the enumeration.
std::string ActivityToString(TCommitActivity activity);
/// Next activity after `current` (wrapping around) whose text starts with `letter`, ignoring case.
std::optional<TCommitActivity> NextActivityWith(char letter, TCommitActivity current);

/// One listed file.
struct TCommitRowData {
  TCommitActivity Activity = caNone;  ///< suggested or chosen by the user
  std::string Status;                 ///< for the user
  std::string FileName;               ///< full path
  std::string Comment;                ///< individual comment
};

/// Status and suggested activity for a status word; comment and file name stay empty.  `locallyModified` means that the
/// file is missing on disk or differs.
TCommitRowData ClassifyCommitRow(scc::Long status, bool locallyModified);

/// The rows of the current project, sorted by name ignoring case, without duplicates: the project's files with their
/// companions and the files known to the provider only.  Calls the provider for one population, one query, and one quick
/// difference per controlled file on disk.  Throws EAbort if there is no provider, no provider project for the project's
/// directory, or more than kMaxFiles files.
std::vector<TCommitRowData> GatherCommitRows(TCommandContext& context);

}  // namespace kestrel::addin
