// A repository in a temporary folder, and what its own library says of it: nothing here goes through the provider.
#pragma once

#include <svn_types.h>

#include <optional>

#include "support/Environment.h"
#include "support/TemporaryFolder.h"
#include "support/Testing.h"

namespace kestrel::svnscc {

/// The provider, or the library that stands for it in a run of the tests through a process of its own.
std::string SubversionLibrary();

class TTestRepository {
 public:
  TTestRepository();

  const std::string& Folder() const { return folder_; }
  const std::string& Url() const { return url_; }

  /// Sets a limit for clients made from now on (subversion/svn/Limits.h).
  void SetLimit(const std::string& name, int seconds) const;
  /// As if the user had chosen the project in the provider's dialog.  The repository itself is one that was used before.
  void Choose(const std::string& project) const;

  svn_revnum_t Youngest() const;
  std::string Log(svn_revnum_t revision) const { return RevisionProperty(revision, "svn:log"); }
  std::string Author(svn_revnum_t revision) const { return RevisionProperty(revision, "svn:author"); }
  bool Exists(const std::string& path) const;
  /// Contents at the newest revision.
  std::string Contents(const std::string& path) const;
  std::optional<std::string> Property(const std::string& path, const char* name) const;
  std::optional<std::string> LockOwner(const std::string& path) const;

  /// Takes a lock away as an administrator does.
  void BreakLock(const std::string& path) const;
  /// Makes the repository unreachable.
  void Hide() const { fs::rename(folder_, folder_ + "-gone"); }
  void Show() const { fs::rename(folder_ + "-gone", folder_); }
  /// An executable hook, run by the repository.
  void WriteHook(const std::string& name, const std::string& script) const;

 private:
  std::string RevisionProperty(svn_revnum_t revision, const char* name) const;

  TTemporaryFolder temporary_;
  TEnvironmentVariable configuration_;  // nobody's own settings
  TEnvironmentVariable registry_;
  std::string folder_;
  std::string url_;
};

}  // namespace kestrel::svnscc
