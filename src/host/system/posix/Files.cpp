#include <fcntl.h>
#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <stdexcept>
#include <system_error>
#include <utility>

#include "system/Paths.h"
#include "system/System.h"
#include "system/TemporaryFiles.h"

namespace kestrel {

namespace {

[[noreturn]] void Fail(const char* what, const std::string& path, int error) {
  throw std::runtime_error(std::string(what) + " " + path + ": " + std::generic_category().message(error));
}
[[noreturn]] void FailToWrite(const std::string& path, int error) { Fail("Cannot write", path, error); }
[[noreturn]] void FailToRead(const std::string& path, int error) { Fail("Cannot read", path, error); }

class TFile {
 public:
  explicit TFile(int descriptor) : descriptor_(descriptor) {}
  TFile(const TFile&) = delete;
  TFile& operator=(const TFile&) = delete;
  ~TFile() {
    if (descriptor_ >= 0) close(descriptor_);
  }
  int Get() const { return descriptor_; }
  bool IsOpen() const { return descriptor_ >= 0; }
  /// Returns false on failure; some file systems report a full disk only here.
  bool Close() { return close(std::exchange(descriptor_, -1)) == 0; }

 private:
  int descriptor_;
};

/// A new file that is deleted with this object unless Replace() succeeded.
class TTemporaryFile {
 public:
  /// Throws if the file cannot be created in the directory of `target`.
  explicit TTemporaryFile(const std::string& target)
      : target_(target), path_(NewName(target)), file_(Create()) {}
  ~TTemporaryFile() {
    if (!path_.empty()) unlink(path_.c_str());
  }

  void CopyPermissions(const struct stat& old) const {
    // Only root may change the owner; for other users the file becomes theirs.
    [[maybe_unused]] const int ignored = fchown(file_.Get(), old.st_uid, old.st_gid);
    Check(fchmod(file_.Get(), old.st_mode & 0777) == 0);
  }

  void Write(std::string_view contents) const {
    while (!contents.empty()) {
      const auto written = write(file_.Get(), contents.data(), contents.size());
      if (written < 0 && errno == EINTR) continue;
      Check(written >= 0);
      contents.remove_prefix(static_cast<std::size_t>(written));
    }
  }

  void Replace() {
    Check(fsync(file_.Get()) == 0);
    Check(file_.Close());
    Check(rename(path_.c_str(), target_.c_str()) == 0);
    path_.clear();
    SyncDirectory();
  }

 private:
  static std::string NewName(const std::string& target) {
    return ResolvePath(ExtractFileDir(target), NewTemporaryName());
  }
  int Create() {
    constexpr int flags = O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC;
    int descriptor = open(path_.c_str(), flags, 0666);
    // A killed process with the same id left a file with that name.
    while (descriptor < 0 && errno == EEXIST)
      descriptor = open((path_ = NewName(target_)).c_str(), flags, 0666);
    if (descriptor < 0) FailToWrite(target_, errno);
    return descriptor;
  }
  void Check(bool succeeded) const {
    if (!succeeded) FailToWrite(target_, errno);
  }
  /// Makes the rename survive a power failure.  Ignores errors: some file systems do not support or need it.
  void SyncDirectory() const {
    const auto directory = ExtractFileDir(target_);
    const TFile opened(open(directory.empty() ? "." : directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (opened.IsOpen()) fsync(opened.Get());
  }

  const std::string target_;
  std::string path_;
  TFile file_;
};

/// Resolves links, so that writing replaces the file and not the link.
std::string ResolveLinks(const std::string& path) {
  std::error_code failed;
  const auto real = std::filesystem::canonical(path, failed);
  if (!failed) return real.string();
  // A dangling link must not be replaced.
  if (std::error_code ignored; std::filesystem::is_symlink(path, ignored)) FailToWrite(path, failed.value());
  return path;
}

}  // namespace

void WriteFileAtomically(const std::string& path, const std::string& contents) {
  const auto target = ResolveLinks(path);
  struct stat old {};
  const bool exists = stat(target.c_str(), &old) == 0;
  if (exists && S_ISDIR(old.st_mode)) FailToWrite(path, EISDIR);
  // rename() would replace a read-only file.
  if (exists && !(old.st_mode & S_IWUSR)) FailToWrite(path, EACCES);
  if (exists && access(target.c_str(), W_OK) != 0) FailToWrite(path, errno);
  TTemporaryFile file(target);
  if (exists) file.CopyPermissions(old);
  file.Write(contents);
  file.Replace();
  RemoveStaleTemporaryFiles(ExtractFileDir(target));
}

bool IsProcessRunning(unsigned long process) {
  return kill(static_cast<pid_t>(process), 0) == 0 || errno != ESRCH;
}
unsigned long CurrentProcess() { return static_cast<unsigned long>(getpid()); }

std::string ReadWholeFile(const std::string& path) {
  const TFile file(open(path.c_str(), O_RDONLY | O_CLOEXEC));
  if (!file.IsOpen()) FailToRead(path, errno);
  std::string contents;
  std::array<char, 65536> block;
  for (;;) {
    const auto size = read(file.Get(), block.data(), block.size());
    if (size < 0 && errno == EINTR) continue;
    if (size < 0) FailToRead(path, errno);
    if (size == 0) return contents;
    contents.append(block.data(), static_cast<std::size_t>(size));
  }
}

}  // namespace kestrel
