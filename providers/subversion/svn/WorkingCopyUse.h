// Which other processes use a working copy.  libsvn's working-copy locks name no owner and survive a process that dies.
#pragma once

#include <sys/file.h>

#include <functional>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace kestrel::svnscc {

/// Owns a file descriptor; -1 is none.
class FileHandle {
 public:
  explicit FileHandle(int number = -1) : number_(number) {}
  FileHandle(FileHandle&& other) noexcept : number_(other.number_) { other.number_ = -1; }
  FileHandle& operator=(FileHandle&& other) noexcept {
    std::swap(number_, other.number_);
    return *this;
  }
  ~FileHandle();
  int Number() const { return number_; }
  bool IsOpen() const { return number_ >= 0; }

 private:
  int number_;
};

/// A file in .svn that every process with the project open holds open: shared-locked during a call, unlocked between
/// calls, which tells an idle provider from a busy one.  In a read-only folder there is no marker, and no command can
/// leave a lock either.
class UseMarker {
 public:
  UseMarker() = default;
  /// For the working copy at `root`.
  explicit UseMarker(const std::string& root);

  /// Scoped: this process is using the working copy.
  class Work {
   public:
    explicit Work(const UseMarker& mark) : mark_(mark) { mark_.Lock(LOCK_SH); }
    Work(const Work&) = delete;
    Work& operator=(const Work&) = delete;
    ~Work() { mark_.Lock(LOCK_UN); }

   private:
    const UseMarker& mark_;
  };

  /// Runs `body` if no other process uses the working copy; processes of this provider cannot start to meanwhile.
  /// Otherwise returns the names of the programs that use it.
  std::vector<std::string> IfUnused(const std::function<void()>& body) const;

 private:
  /// flock(); false if the lock is taken and `operation` does not wait.
  bool Lock(int operation) const;
  /// The programs that have the working copy's database open, except those that have the marker open, too: they are idle.
  std::vector<std::string> Users() const;

  std::string root_;
  FileHandle file_;
};

/// The files that a check-out is locking, stored in .svn.  A process that dies between the repository's answer and the
/// update of the working copy leaves locks whose tokens are lost; the journal shows that they belong to this working copy.
class LockJournal {
 public:
  LockJournal() = default;
  /// Reads and removes the journals of dead processes in the working copy at `root`.
  explicit LockJournal(const std::string& root);

  /// Whether a lock on the absolute `path` may belong to this working copy.
  bool Has(const std::string& path) const { return paths_.contains(path); }
  void Add(const std::vector<std::string>& paths);
  void Remove(const std::vector<std::string>& paths);

 private:
  void Store();

  std::string root_;
  std::string name_;
  FileHandle file_;  // locked while the process lives
  std::set<std::string> paths_;
};

}  // namespace kestrel::svnscc
