// Whole files, read and written.

#include <atomic>
#include <filesystem>
#include <stdexcept>
#include <system_error>

#include "host/FileName.h"
#include "host/Paths.h"
#include "host/System.h"
#include "host/windows/Api.h"
#include "host/windows/Wide.h"

namespace {

[[noreturn]] void Fail(const char* what, const std::string& path, DWORD error) {
  throw std::runtime_error(std::string(what) + " " + path + ": " + SystemMessage(error));
}
[[noreturn]] void FailToWrite(const std::string& path, DWORD error) { Fail("Cannot write", path, error); }
[[noreturn]] void FailToRead(const std::string& path, DWORD error) { Fail("Cannot read", path, error); }

// The system's calls take their sizes as 32 bits.
constexpr std::size_t kBlock = std::size_t{1} << 20;

class TFile {
 public:
  TFile(const std::wstring& path, DWORD access, DWORD disposition)
      : handle_(CreateFileW(path.c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                            nullptr, disposition, FILE_ATTRIBUTE_NORMAL, nullptr)) {}
  TFile(const TFile&) = delete;
  TFile& operator=(const TFile&) = delete;
  ~TFile() { Close(); }
  HANDLE Get() const { return handle_; }
  bool IsOpen() const { return handle_ != INVALID_HANDLE_VALUE; }
  void Close() {
    if (IsOpen()) CloseHandle(handle_);
    handle_ = INVALID_HANDLE_VALUE;
  }

 private:
  HANDLE handle_;
};

/// Another process that looks into the file just now, as virus scanners and indexers do, keeps it from being replaced.
bool MoveOver(const std::wstring& from, const std::wstring& to) {
  constexpr int kAttempts = 50;
  constexpr DWORD kPauseMs = 20;
  for (int i = 1; !MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH);
       ++i) {
    const auto error = GetLastError();
    const bool passing = error == ERROR_SHARING_VIOLATION || error == ERROR_ACCESS_DENIED;
    if (!passing || i == kAttempts) return SetLastError(error), false;
    Sleep(kPauseMs);
  }
  return true;
}

/// A new file that disappears with this object unless it became the real one.
class TTemporaryFile {
 public:
  /// Throws, naming `target`, when its directory takes no new file.
  explicit TTemporaryFile(const std::string& target)
      : target_(target), path_(NewName(target)), file_(path_, GENERIC_WRITE, CREATE_NEW) {
    Check(file_.IsOpen());
  }
  TTemporaryFile(const TTemporaryFile&) = delete;
  TTemporaryFile& operator=(const TTemporaryFile&) = delete;
  ~TTemporaryFile() {
    file_.Close();
    if (!path_.empty()) DeleteFileW(path_.c_str());
  }

  /// What the owner may not hand on stays as a new file has it.
  void TakePermissionsOf(const std::wstring& old) {
    PACL list = nullptr;
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    if (GetNamedSecurityInfoW(old.c_str(), SE_FILE_OBJECT, DACL_SECURITY_INFORMATION, nullptr, nullptr, &list,
                              nullptr, &descriptor) == ERROR_SUCCESS)
      SetNamedSecurityInfoW(path_.data(), SE_FILE_OBJECT, DACL_SECURITY_INFORMATION, nullptr, nullptr, list,
                            nullptr);
    LocalFree(descriptor);
    SetFileAttributesW(path_.c_str(), GetFileAttributesW(old.c_str()));
  }

  void Write(std::string_view contents) const {
    while (!contents.empty()) {
      DWORD written = 0;
      const auto size = static_cast<DWORD>(std::min(contents.size(), kBlock));
      Check(WriteFile(file_.Get(), contents.data(), size, &written, nullptr));
      contents.remove_prefix(written);
    }
  }

  void Replace() {
    Check(FlushFileBuffers(file_.Get()));
    file_.Close();
    Check(MoveOver(path_, ToWideFileName(target_)));
    path_.clear();
  }

 private:
  /// Short, so that a target whose own name is as long as names may be can be written too.
  static std::wstring NewName(const std::string& target) {
    static std::atomic<unsigned> count{0};
    const auto directory = ExtractFileDir(target);
    const auto name =
        ".corvane-" + std::to_string(GetCurrentProcessId()) + "-" + std::to_string(count++) + ".tmp";
    return ToWideFileName(directory.empty() ? name : IncludeTrailingPathDelimiter(directory) + name);
  }
  void Check(bool succeeded) const {
    if (!succeeded) FailToWrite(target_, GetLastError());
  }

  const std::string target_;
  std::wstring path_;
  TFile file_;
};

/// The file that a link leads to: a link stays a link when its file is written.
std::string BehindLinks(const std::string& path) {
  const auto attributes = GetFileAttributesW(ToWideFileName(path).c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES || !(attributes & FILE_ATTRIBUTE_REPARSE_POINT)) return path;
  std::error_code failed;
  const auto real = std::filesystem::canonical(ToFilePath(path), failed);
  return failed ? path : FromFilePath(real);
}

}  // namespace

void WriteFileAtomically(const std::string& path, const std::string& contents) {
  const auto target = BehindLinks(path);
  const auto wide = ToWideFileName(target);
  const auto attributes = GetFileAttributesW(wide.c_str());
  const bool exists = attributes != INVALID_FILE_ATTRIBUTES;
  // Replacing would not ask: without this a file that its owner protected would be gone.
  if (exists && (attributes & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_READONLY)))
    FailToWrite(path, ERROR_ACCESS_DENIED);
  TTemporaryFile file(target);
  if (exists) file.TakePermissionsOf(wide);
  file.Write(contents);
  file.Replace();
}

std::string ReadWholeFile(const std::string& path) {
  const TFile file(ToWideFileName(path), GENERIC_READ, OPEN_EXISTING);
  if (!file.IsOpen()) FailToRead(path, GetLastError());
  std::string contents;
  for (DWORD size = kBlock; size != 0;) {
    const auto before = contents.size();
    contents.resize(before + kBlock);
    if (!ReadFile(file.Get(), contents.data() + before, kBlock, &size, nullptr))
      FailToRead(path, GetLastError());
    contents.resize(before + size);
  }
  return contents;
}
