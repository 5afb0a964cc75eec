// Who works on a working copy besides this process.  libsvn marks a working copy that a command works on as locked, and
// leaves the mark when the process dies; nothing in the mark says whose it is.
#pragma once

#include <sys/file.h>

#include <functional>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace kestrel::svnscc {

/// A file descriptor, closed with its owner; -1 is none.
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

/// A file in the administrative folder that every process with the project open holds: shared-locked while it works,
/// unlocked while it waits for its client.  So a provider that only waits is told from one that works.  Where the folder
/// cannot be written to there is no mark, and nothing to be left over either.
class UseMarker {
 public:
  UseMarker() = default;
  /// Of the working copy at `root`.
  explicit UseMarker(const std::string& root);

  /// Says that this process works on the working copy while it lives.
  class Work {
   public:
    explicit Work(const UseMarker& mark) : mark_(mark) { mark_.Lock(LOCK_SH); }
    Work(const Work&) = delete;
    Work& operator=(const Work&) = delete;
    ~Work() { mark_.Lock(LOCK_UN); }

   private:
    const UseMarker& mark_;
  };

  /// Runs `body` if no other process uses the working copy; until it returns none of this provider can start to.
  /// Returns the names of the programs that do; without any, `body` has run.
  std::vector<std::string> IfUnused(const std::function<void()>& body) const;

 private:
  /// False when another process works and `operation` does not wait.
  bool Lock(int operation) const;
  /// The programs that hold the working copy's database open.  Those that also hold the mark only wait.
  std::vector<std::string> Users() const;

  std::string root_;
  FileHandle file_;
};

/// The files that a check-out is locking, kept in the administrative folder.  When it dies between the repository's answer
/// and the working copy's note of it, the repository holds locks that nobody has the token of; here stands that they
/// were taken for this working copy.
class LockJournal {
 public:
  LockJournal() = default;
  /// Takes over what processes that died left in the working copy at `root`.
  explicit LockJournal(const std::string& root);

  /// Whether a lock on the absolute `path` without a token may have been taken here.
  bool Has(const std::string& path) const { return paths_.contains(path); }
  void Add(const std::vector<std::string>& paths);
  void Remove(const std::vector<std::string>& paths);

 private:
  void Store();

  std::string root_;
  std::string name_;
  FileHandle file_;  // locked: its process lives
  std::set<std::string> paths_;
};

}  // namespace kestrel::svnscc
