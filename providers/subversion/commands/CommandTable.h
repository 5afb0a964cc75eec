// What each command does with a file, by the state of the file and of the folders above it.  No command overwrites, removes
// or checks in a version that the user has not seen, and every state can be left by some command.
#pragma once

#include "subversion/svn/LocalStatus.h"
#include "subversion/svn/Status.h"

namespace kestrel::svnscc {

enum class FileState {
  Nowhere,     // neither local nor in the repository
  Loose,       // local only
  NotFetched,  // in the repository only
  InTheWay,    // in the repository, and obstructed by a local file that is not under control
  Current,     // same as in the repository
  Edited,      // changed locally
  Old,         // changed in the repository
  Diverged,    // changed locally and in the repository
  Missing,     // in the working copy, not on disk
  Gone,        // deleted in the repository, alone or with a folder above it
  GoneEdited,  // the same, and changed locally
  Merged,      // a text conflict whose markers the user has removed
  Marked,      // a text conflict with markers
  Open,  // a conflict without markers: a binary file, properties, another file of that name in the repository
  Lost,  // a conflict of a local change with a deletion in the repository, of the file or of a folder above it
};

enum class Command { Get, CheckOut, CheckIn, Undo, Add, Remove };

/// How a command begins.
enum class Step {
  Proceed,           // does its work
  Nothing,           // has nothing to do
  Update,            // fetches first
  MoveObstruction,   // moves the obstructing file aside, and fetches
  Adopt,             // fetches if the obstructing file has the same contents, else refuses
  Resolve,           // marks the conflict as resolved, and continues
  Drop,              // unversions the file, which stays on disk
  AcceptRepository,  // takes the repository's version, and keeps a copy of the local one
  Offer,             // asks whether to accept the repository's version; refuses if not
  Refuse,
};

struct Rule {
  Step step;
  scc::Long answer = scc::SCC_OK;  // of Refuse, Offer and Adopt
  const char* reason = "";
};

Rule RuleFor(FileState state, Command command);
/// The step of the rule.  Throws its Failure if the step is Refuse or Offer.
Step Require(FileState state, Command command);

/// The state according to the working copy alone: a controlled file counts as current.
FileState StateOf(const LocalStatus& local);
/// The state by a status from the repository; reads the working copy and the disk where `status` is not sufficient.
FileState StateOf(const ProviderContext& context, const std::string& path, const FileStatus& status);

/// The statuses of some files, fetched in the cheapest way: a few files one by one, which costs the same in a project of any
/// size, more by one walk.
class Survey {
 public:
  Survey(ProviderContext& context, const std::vector<std::string>& paths);
  /// Negative if the repository could not be contacted, which has been reported.
  scc::Long Result() const { return result_; }
  FileStatus StatusOf(const std::string& path) const;
  FileState StateOf(const std::string& path) const { return svnscc::StateOf(context_, path, StatusOf(path)); }
  /// Whether it has the statuses of the whole project.
  bool IsWalk() const { return isWalk_; }
  /// Whether these are all files of the project that an update would change.
  bool AreAllStale(std::vector<std::string> paths) const;

 private:
  ProviderContext& context_;
  scc::Long result_ = scc::SCC_OK;
  StatusTable statuses_;
  bool isWalk_;
};

}  // namespace kestrel::svnscc
