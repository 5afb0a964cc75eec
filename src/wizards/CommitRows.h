// What the commit browser lists, without its window: every file of the project with its state and a proposed action.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "provider/sccapiintf.h"

namespace kestrel::addin {

struct TCommandContext;

/// What is done to one file.  The values are the indexes of the drop-down's items.
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
/// As the user reads it; a value outside the enumeration has a text of its own.
std::string ActivityToString(TCommitActivity activity);
/// The activity that typing `letter` (of either case) leads to from `current`: the next one, round about, whose text
/// begins with it; nothing when none does.
std::optional<TCommitActivity> NextActivityWith(char letter, TCommitActivity current);

/// One listed file.
struct TCommitRowData {
  TCommitActivity Activity = caNone;  ///< proposed at first, later what the user picked
  std::string Status;                 ///< the state in words
  std::string FileName;               ///< full path
  std::string Comment;                ///< this file's own
};

/// State and proposal for a file of that status word.  `locallyModified`: missing on disk, or the local file differs.
/// Comment and file name stay empty.
TCommitRowData ClassifyCommitRow(scc::Long status, bool locallyModified);

/// The rows of the current project, sorted by name ignoring case, no file twice: the project's files with their
/// companions, and the files that only the provider knows, at most kMaxFiles in all.  Asks the provider for one
/// population, one query, and one quick difference per controlled file on disk.  Throws EAbort when there is no
/// provider, the project's directory is no provider project, or there are too many files.
std::vector<TCommitRowData> GatherCommitRows(TCommandContext& context);

}  // namespace kestrel::addin
