// The status of a project's files as SCC status bits.
#pragma once

#include <svn_client.h>

#include <map>
#include <span>
#include <string>
#include <unordered_map>
#include <vector>

#include "scc/sccdefs.h"

namespace kestrel::svnscc {

class ProviderContext;

struct FileStatus {
  scc::Long Bits = 0;
  bool IsFolder = false;
  /// The local copy differs from the newest revision apart from local edits: a get would change it.
  bool NeedsGet = false;
  /// Locked in the repository by a check-out that was interrupted here; the lock can be taken over.
  bool LeftOver = false;
  /// Known to the working copy, though perhaps not on disk.
  bool IsHere = false;
  std::string LockOwner;  // in the repository; empty if not locked
};

/// Statuses by canonical absolute path.
class StatusTable {
 public:
  void Put(const std::string& path, const FileStatus& status);
  /// The status of a path; default (not controlled) if it is not listed.
  FileStatus Of(const std::string& path) const;
  std::unordered_map<std::string, FileStatus>& Entries() { return entries_; }
  /// All controlled files, sorted.
  std::vector<std::string> Files() const;
  /// SCC_OK, or why the repository could not be contacted: then the statuses come from the working copy alone.
  scc::Long Result = scc::SCC_OK;

 private:
  std::unordered_map<std::string, FileStatus> entries_;
};

enum class Answer {
  New,
  MayBeRecent,  // that of the last walk, unless it is too old (RecentAnswer.h)
};
/// Walks the whole project folder and the repository; at most one server contact.  Stores the result in LastStatuses().
const StatusTable& WalkProject(ProviderContext& context, Answer which = Answer::New);
/// Fetches the status of one path, which is cheaper than a walk.  Throws Failure.
FileStatus FetchStatus(ProviderContext& context, const std::string& path);
/// The statuses of a folder and everything below it, by path, from the working copy alone.
std::map<std::string, FileStatus> LocalEntries(ProviderContext& context, const std::string& folder);
/// Queues the local statuses of `names` as events, after a command that succeeded for all of them.
void RecordCommandResult(ProviderContext& context, std::span<const char* const> names);
/// The bits of one libsvn status for `user`.
FileStatus ToFileStatus(const svn_client_status_t& status, const std::string& user);

}  // namespace kestrel::svnscc
