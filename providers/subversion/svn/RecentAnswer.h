// What the repository answered to the last status query, for the queries that follow shortly: a client asks several times
// between the click on its menu and the list on screen.
#pragma once

#include <svn_client.h>

#include <chrono>
#include <map>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "subversion/svn/SvnHandles.h"

namespace kestrel::svnscc {

/// The fields of a status that come from the repository.
struct RemoteState {
  RemoteState() = default;
  explicit RemoteState(const svn_client_status_t& status);
  /// Whether the file is the same in the repository and not locked there.
  bool IsPlain() const;
  /// Sets the fields in `status`, which points into this object afterwards.
  void ApplyTo(svn_client_status_t& status);

 private:
  svn_wc_status_kind node_ = svn_wc_status_none;
  svn_wc_status_kind text_ = svn_wc_status_none;
  svn_wc_status_kind properties_ = svn_wc_status_none;
  svn_node_kind_t kind_ = svn_node_none;
  std::string token_;
  std::string owner_;
  svn_lock_t lock_{};
};

/// The repository's part of the statuses of a project.  Local states are not in it: they are read at every query.
struct RepositoryAnswer {
  /// By local path; without plain ones.
  std::unordered_map<std::string, RemoteState> States;
  /// By path relative to the project; nullopt if no query needed them.
  std::optional<std::map<std::string, std::string>> LockOwners;
  /// The files below folders of the project, both relative.
  std::map<std::string, std::vector<std::string>> FilesBelow;
  /// Why the repository could not be contacted.
  std::optional<Failure> Unreachable;
};

/// Remembers an answer until it is some seconds old, a command runs, or a program writes to the working copy's database.
class RecentAnswer {
 public:
  RecentAnswer() = default;
  /// For the working copy at `root`.
  RecentAnswer(const std::string& root, std::chrono::milliseconds lifetime);

  /// The working copy's database as it is now; taken before the repository is asked.
  struct Stamp {
    apr_time_t Changed = 0;
    apr_off_t Size = 0;
    bool operator==(const Stamp&) const = default;
  };
  Stamp StampNow() const;
  void Store(RepositoryAnswer answer, const Stamp& stamp);
  /// The stored answer, null if there is none or if it is too old.
  RepositoryAnswer* Find();
  void Forget() { answer_.reset(); }

 private:
  std::string database_;
  std::chrono::milliseconds lifetime_{};
  std::optional<RepositoryAnswer> answer_;
  std::chrono::steady_clock::time_point end_;
  Stamp stamp_;
};

}  // namespace kestrel::svnscc
