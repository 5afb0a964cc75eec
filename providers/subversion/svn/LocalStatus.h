// What the working copy knows of one file, without asking the repository.
#pragma once

#include <svn_wc.h>

#include <string>

namespace kestrel::svnscc {

class ProviderContext;

enum class LocalState {
  Absent,       // neither on disk nor known to the working copy
  Unversioned,  // on disk only
  Added,        // scheduled, not in the repository yet
  Controlled,   // in the repository and here
  Missing,      // controlled, but not on disk
};

/// What stands between a file and its next check-in.
enum class Conflict {
  None,
  Marked,  // a text in which both versions stand, between marks
  Edited,  // such a text whose marks were edited away: the user settled it
  Open,    // no marks to go by: a binary file, properties, or another file of that name in the repository
  Lost,    // changed here, deleted or moved in the repository
};

struct LocalStatus {
  LocalState State = LocalState::Absent;
  bool IsFolder = false;
  bool Modified = false;  // contents or properties
  bool Differs = false;   // contents only
  Conflict Kind = Conflict::None;
  std::string Victim;    // where the conflict stands: the file, or a folder above it
  bool HasLock = false;  // the working copy holds a lock token
  svn_depth_t Depth = svn_depth_unknown;

  bool IsControlled() const { return State == LocalState::Controlled || State == LocalState::Missing; }
  bool IsConflicted() const { return Kind != Conflict::None; }
};

/// `path` is an absolute path inside the project.  Throws Failure when the working copy cannot be read.
LocalStatus ReadLocalStatus(const ProviderContext& context, const std::string& path);

/// Makes the file writable by its owner; a missing file is left alone.
void MakeWritable(const std::string& path);
bool IsOnDisk(const std::string& path);

}  // namespace kestrel::svnscc
