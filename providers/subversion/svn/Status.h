// The status of a project's files, in the API's bits.
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
  /// The local copy is not what the repository holds: to be fetched by a get.
  bool NeedsGet = false;
  /// Locked in the repository by a check-out that was interrupted here: can be taken over.
  bool LeftOver = false;
  /// The working copy has it, though perhaps not on disk.
  bool IsHere = false;
};

/// Statuses by absolute path as libsvn spells it.
class StatusTable {
 public:
  void Put(const std::string& path, const FileStatus& status);
  /// The status of a path; one that is not listed is not controlled.
  FileStatus Of(const std::string& path) const;
  std::unordered_map<std::string, FileStatus>& Entries() { return entries_; }
  /// All controlled files, sorted.
  std::vector<std::string> Files() const;
  /// SCC_OK, or why the repository could not be asked: then the table holds what the working copy knows.
  scc::Long Result = scc::SCC_OK;

 private:
  std::unordered_map<std::string, FileStatus> entries_;
};

/// One walk over the whole project folder and the repository.  Also keeps a copy as the context's last statuses.
const StatusTable& WalkProject(ProviderContext& context);
/// The status of one path, asked of the repository: for one file that costs less than a walk.  Throws Failure.
FileStatus FetchStatus(ProviderContext& context, const std::string& path);
/// What the working copy knows of a folder and of all that lies below it, sorted by path.  Nothing is asked.
std::map<std::string, FileStatus> LocalEntries(ProviderContext& context, const std::string& folder);
/// Queues what a command that succeeded for all of these files made of them, from the working copy's knowledge.
void RecordCommandResult(ProviderContext& context, std::span<const char* const> names);
/// The bits of one libsvn status for `user`.
FileStatus ToFileStatus(const svn_client_status_t& status, const std::string& user);

}  // namespace kestrel::svnscc
