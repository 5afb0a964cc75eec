// A cached view of a repository: the entries of its folders, fetched once each.
#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "subversion/svn/NodeInfo.h"

namespace kestrel::svnscc {

struct TreeEntry {
  std::string Name;
  bool IsFolder = false;
  svn_filesize_t Size = 0;
  svn_revnum_t ChangedRevision = SVN_INVALID_REVNUM;
  std::string ChangedBy;
  apr_time_t ChangedAt = 0;
  LockInfo Lock;
};

class RepositoryTree {
 public:
  explicit RepositoryTree(std::string user) : user_(std::move(user)) {}

  /// Opens the repository at or above the address `text` (see ToRepositoryUrl).  Returns the path inside the repository.
  /// Throws Failure and leaves nothing open.
  std::string Open(const std::string& text);
  bool IsOpen() const { return client_ != nullptr; }
  const std::string& Root() const { return root_; }
  std::string UrlAt(const std::string& path) const;
  /// Sorted: folders first, then files, by name.  `path` is inside the repository, empty for its root.  Fetches each folder
  /// once.  Throws Failure.
  const std::vector<TreeEntry>& EntriesOf(const std::string& path);
  /// Drops the cache.
  void Forget() { entries_.clear(); }
  Client& Svn() { return *client_; }

 private:
  std::string user_;
  std::unique_ptr<Client> client_;
  std::string root_;
  std::map<std::string, std::vector<TreeEntry>> entries_;
};

}  // namespace kestrel::svnscc
