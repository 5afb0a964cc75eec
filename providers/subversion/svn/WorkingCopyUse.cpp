#include "subversion/svn/WorkingCopyUse.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <filesystem>

#include "subversion/svn/SvnStrings.h"
#include "system/System.h"
#include "system/Text.h"

namespace kestrel::svnscc {
namespace {

namespace fs = std::filesystem;

constexpr const char* kMarker = "/.svn/subversion-scc";
constexpr const char* kJournalPrefix = "subversion-scc-";

std::string RealPath(const std::string& path) {
  std::error_code error;
  return fs::canonical(path, error).string();
}

/// Which files of a working copy a process has open.
struct OpenFiles {
  bool database = false;
  bool marker = false;
  bool hidden = false;  // no permission to list them
};

OpenFiles OpenFilesOf(const fs::path& process, const std::string& database, const std::string& marker) {
  OpenFiles opened;
  std::error_code error;
  auto files = fs::directory_iterator(process / "fd", error);
  opened.hidden = error == std::errc::permission_denied;
  for (; !error && files != fs::directory_iterator(); files.increment(error)) {
    std::error_code closed;
    const std::string name = fs::read_symlink(files->path(), closed).string();
    opened.database = opened.database || name == database;
    opened.marker = opened.marker || name == marker;
  }
  return opened;
}

std::string ProgramName(const fs::path& process) {
  try {
    return Trim(ReadWholeFile((process / "comm").string()));
  } catch (const std::runtime_error&) {
    return process.filename().string();
  }
}

/// Whether other users may write to the file; if not, their hidden processes do not matter.
bool IsShared(const std::string& file) {
  struct stat facts {};
  return stat(file.c_str(), &facts) != 0 || (facts.st_mode & (S_IWGRP | S_IWOTH)) != 0;
}

bool IsOwnedByRoot(const fs::path& process) {
  struct stat facts {};
  return stat(process.c_str(), &facts) == 0 && facts.st_uid == 0;
}

}  // namespace

FileHandle::~FileHandle() {
  if (number_ >= 0) close(number_);
}

UseMarker::UseMarker(const std::string& root)
    : root_(root), file_(open((root + kMarker).c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0666)) {}

bool UseMarker::Lock(int operation) const {
  return !file_.IsOpen() || flock(file_.Number(), operation) == 0 || errno != EWOULDBLOCK;
}

std::vector<std::string> UseMarker::IfUnused(const std::function<void()>& body) const {
  struct Share {  // even a refused attempt has released the shared lock
    const UseMarker& marker;
    ~Share() { marker.Lock(LOCK_SH); }
  } const share{*this};
  if (!Lock(LOCK_EX | LOCK_NB)) return {sThisProvidersProgram};
  auto users = Users();
  if (users.empty()) body();
  return users;
}

std::vector<std::string> UseMarker::Users() const {
  const std::string database = RealPath(root_ + "/.svn/wc.db");
  const std::string marker = RealPath(root_ + kMarker);
  const bool shared = IsShared(database);
  const std::string own = std::to_string(getpid());
  std::vector<std::string> users;
  std::error_code error;
  for (const auto& process : fs::directory_iterator("/proc", error)) {
    const std::string number = process.path().filename().string();
    if (number == own || number.find_first_not_of("0123456789") != std::string::npos) continue;
    const OpenFiles opened = OpenFilesOf(process.path(), database, marker);
    if (opened.database && !opened.marker) users.push_back(ProgramName(process.path()));
    if (opened.hidden && shared && !IsOwnedByRoot(process.path())) users.push_back(sOthersProgram);
  }
  if (error) users.push_back(sUnknownProgram);  // no list of processes
  std::sort(users.begin(), users.end());
  users.erase(std::unique(users.begin(), users.end()), users.end());
  return users;
}

LockJournal::LockJournal(const std::string& root) : root_(root) {
  std::error_code error;
  for (const auto& entry : fs::directory_iterator(root + "/.svn", error)) {
    if (!entry.path().filename().string().starts_with(kJournalPrefix)) continue;
    const FileHandle file(open(entry.path().c_str(), O_RDONLY | O_CLOEXEC));
    if (!file.IsOpen() || flock(file.Number(), LOCK_EX | LOCK_NB) != 0) continue;
    try {
      const std::string text = ReadWholeFile(entry.path().string());
      for (std::size_t at = 0, end; (end = text.find('\0', at)) != std::string::npos; at = end + 1)
        paths_.insert(root_ + "/" + text.substr(at, end - at));
    } catch (const std::runtime_error&) {
      continue;
    }
    Store();  // before the other journal is deleted
    unlink(entry.path().c_str());
  }
}

void LockJournal::Add(const std::vector<std::string>& paths) {
  paths_.insert(paths.begin(), paths.end());
  Store();
}

void LockJournal::Remove(const std::vector<std::string>& paths) {
  std::size_t gone = 0;
  for (const auto& path : paths) gone += paths_.erase(path);
  if (gone > 0) Store();
}

// Written in place: written data survives a killed process; after a system crash, the user can break the lock by hand.
void LockJournal::Store() {
  if (paths_.empty()) {
    if (file_.IsOpen()) unlink(name_.c_str());
    file_ = FileHandle();
    return;
  }
  if (!file_.IsOpen()) {
    name_ = root_ + "/.svn/" + kJournalPrefix + "XXXXXX";
    file_ = FileHandle(mkostemp(name_.data(), O_CLOEXEC));
    if (!file_.IsOpen()) return;
    flock(file_.Number(), LOCK_EX | LOCK_NB);
  }
  std::string text;
  for (const auto& path : paths_) text += path.substr(root_.size() + 1) + '\0';
  if (ftruncate(file_.Number(), 0) == 0 &&
      pwrite(file_.Number(), text.data(), text.size(), 0) != static_cast<ssize_t>(text.size()))
    ftruncate(file_.Number(), 0);  // a truncated name would be that of another file
}

}  // namespace kestrel::svnscc
