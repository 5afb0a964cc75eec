// What each command does with a file, by the state of the file and of the folders above it.  It holds for all of them
// that no command overwrites, takes away or hands in a version that nobody has looked at, and that from every state some
// command leads out.
#pragma once

#include "subversion/svn/LocalStatus.h"
#include "subversion/svn/Status.h"

namespace kestrel::svnscc {

enum class FileState {
  Nowhere,     // neither here nor in the repository
  Loose,       // here only
  NotFetched,  // in the repository only
  InTheWay,    // in the repository, and here a file of that name that never came from it
  Current,     // here as in the repository
  Edited,      // changed here
  Old,         // changed in the repository
  Diverged,    // changed here and in the repository
  Missing,     // known to the working copy, not on disk
  Gone,        // deleted in the repository, itself or with a folder above it
  GoneEdited,  // the same, and changed here
  Merged,      // a conflict in a text, whose marks were edited away
  Marked,      // a conflict in a text, whose marks still stand
  Open,  // a conflict that left no marks: a binary file, properties, another file of that name in the repository
  Lost,  // a conflict of a change here with a deletion in the repository, of the file or of a folder above it
};

enum class Command { Get, CheckOut, CheckIn, Undo, Add, Remove };

/// How a command begins.
enum class Step {
  Proceed,          // does what it is for
  Nothing,          // there is nothing to do
  Update,           // fetches first
  MoveObstruction,  // fetches first; the file in the way stays beside it
  Adopt,    // fetches first when the file in the way says the same as the repository's, and refuses otherwise
  Resolve,  // takes the conflict for settled, and looks again
  Drop,     // makes the working copy forget it, and keeps the file
  AcceptRepository,  // takes what the repository has, and keeps a copy of what is here
  Offer,             // asks whether to give up, and refuses otherwise
  Refuse,
};

struct Rule {
  Step step;
  scc::Long answer = scc::SCC_OK;  // of Refuse, Offer and Adopt
  const char* reason = "";
};

Rule RuleFor(FileState state, Command command);
/// The rule, unless it is to refuse, or to ask first: then throws its Failure.
Step Require(FileState state, Command command);

/// What the working copy alone can tell: what it has counts as current until the repository was asked.
FileState StateOf(const LocalStatus& local);
/// With what the repository said.  `path` is looked up in the working copy and on disk where `status` leaves it open.
FileState StateOf(const ProviderContext& context, const std::string& path, const FileStatus& status);

/// The statuses of some files, asked of the repository in the cheapest way: one file alone, more by one walk.
class Survey {
 public:
  Survey(ProviderContext& context, const std::vector<std::string>& paths);
  /// Negative when the repository could not be asked.  The user was told why.
  scc::Long Result() const { return result_; }
  FileStatus StatusOf(const std::string& path) const;
  FileState StateOf(const std::string& path) const { return svnscc::StateOf(context_, path, StatusOf(path)); }

 private:
  ProviderContext& context_;
  scc::Long result_ = scc::SCC_OK;
  StatusTable walked_;
  bool alone_;
};

}  // namespace kestrel::svnscc
