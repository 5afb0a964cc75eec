// What the working copy knows of one file, without asking the repository.
#pragma once

#include <svn_wc.h>

#include <string>

namespace svnscc {

class Session;

enum class LocalState {
  Absent,       // neither on disk nor known to the working copy
  Unversioned,  // on disk only
  Added,        // scheduled, not in the repository yet
  Controlled,   // in the repository and here
  Missing,      // controlled, but not on disk
};

struct LocalStatus {
  LocalState State = LocalState::Absent;
  bool IsFolder = false;
  bool Modified = false;  // contents or properties
  bool Differs = false;   // contents only
  bool Conflicted = false;
  bool HasLock = false;  // the working copy holds a lock token
  svn_depth_t Depth = svn_depth_unknown;

  bool IsControlled() const { return State == LocalState::Controlled || State == LocalState::Missing; }
};

/// `path` is an absolute path inside the project.  Throws Failure when the working copy cannot be read.
LocalStatus AskLocal(const Session& session, const std::string& path);

/// Makes the file writable by its owner; a missing file is left alone.
void MakeWritable(const std::string& path);
bool IsOnDisk(const std::string& path);

}  // namespace svnscc
