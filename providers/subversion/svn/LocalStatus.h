// The status of one file in the working copy, without contacting the repository.
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

/// The conflict that has to be resolved before the next check-in.
enum class Conflict {
  None,
  Marked,  // a text with conflict markers
  Edited,  // a text whose conflict markers the user has removed
  Open,    // without markers: a binary file, properties, or another file of that name in the repository
  Lost,    // changed here, and deleted or moved in the repository
};

struct LocalStatus {
  LocalState State = LocalState::Absent;
  bool IsFolder = false;
  bool Modified = false;  // contents or properties
  bool Differs = false;   // contents only
  Conflict Kind = Conflict::None;
  std::string Victim;    // the file or the folder above it that is in conflict
  bool HasLock = false;  // the working copy holds a lock token
  svn_depth_t Depth = svn_depth_unknown;

  bool IsControlled() const { return State == LocalState::Controlled || State == LocalState::Missing; }
  bool IsConflicted() const { return Kind != Conflict::None; }
};

/// `path` is an absolute path inside the project.  Throws Failure if the working copy cannot be read.
LocalStatus ReadLocalStatus(const ProviderContext& context, const std::string& path);

/// Makes the file writable by its owner; ignores a missing file.  Throws Failure.
void MakeWritable(const std::string& path);
bool IsOnDisk(const std::string& path);

}  // namespace kestrel::svnscc
