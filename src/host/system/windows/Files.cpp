// Whole files, read and written.

#include <algorithm>
#include <initializer_list>
#include <memory>
#include <stdexcept>

#include "system/System.h"
#include "system/TemporaryFiles.h"
#include "system/windows/Api.h"
#include "system/windows/Wide.h"

namespace kestrel {

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
  TFile() = default;
  TFile(const TFile&) = delete;
  TFile& operator=(const TFile&) = delete;
  ~TFile() { Close(); }
  bool Open(const std::wstring& path, DWORD access, DWORD disposition) {
    handle_ = CreateFileW(path.c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                          nullptr, disposition, FILE_ATTRIBUTE_NORMAL, nullptr);
    return handle_ != INVALID_HANDLE_VALUE;
  }
  HANDLE Get() const { return handle_; }
  void Close() {
    if (handle_ != INVALID_HANDLE_VALUE) CloseHandle(handle_);
    handle_ = INVALID_HANDLE_VALUE;
  }

 private:
  HANDLE handle_ = INVALID_HANDLE_VALUE;
};

/// Tries again for a second: another process that looks into the file just now, as virus scanners and indexers do, is in
/// the way for a moment only.
template <typename TAttempt>
bool RetryOnSharingViolation(std::initializer_list<DWORD> passing, const TAttempt& attempt) {
  constexpr int kAttempts = 50;
  constexpr DWORD kPauseMs = 20;
  for (int i = 1; !attempt(); ++i) {
    const auto error = GetLastError();
    if (i == kAttempts || std::ranges::find(passing, error) == passing.end())
      return SetLastError(error), false;
    Sleep(kPauseMs);
  }
  return true;
}

// ------------------------------------------------------------------------------------------------- the target

/// Where contents go.
struct TTarget {
  std::string Shown;  ///< as the caller has it
  std::wstring Path;  ///< the file behind links: a link stays a link when its file is written
  bool Exists;

  /// With its delimiter.
  std::string Folder() const { return FromWide(Path.substr(0, Path.find_last_of(L"\\:") + 1)); }
};

/// The name of an open file without links in it; empty where the system has none, as on some virtual disks.
std::wstring FinalName(HANDLE file) {
  constexpr DWORD kLongestPath = 32768;
  std::wstring name(kLongestPath, L'\0');
  const auto size = GetFinalPathNameByHandleW(file, name.data(), kLongestPath, FILE_NAME_NORMALIZED);
  name.resize(size < kLongestPath ? size : 0);
  return name;
}

/// Throws when there is something that may not be written: replacing it would not ask.
TTarget FindTarget(const std::string& path) {
  const auto name = ToWideFileName(path);
  const auto attributes = GetFileAttributesW(name.c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES) return {path, name, false};
  if (attributes & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_READONLY))
    FailToWrite(path, ERROR_ACCESS_DENIED);
  TFile file;
  if (!RetryOnSharingViolation({ERROR_SHARING_VIOLATION},
                               [&] { return file.Open(name, GENERIC_WRITE, OPEN_EXISTING); }))
    FailToWrite(path, GetLastError());
  const auto behind = FinalName(file.Get());
  if (behind.empty() && (attributes & FILE_ATTRIBUTE_REPARSE_POINT)) FailToWrite(path, GetLastError());
  return {path, behind.empty() ? name : behind, true};
}

// ------------------------------------------------------------------------------------------------- its successor

/// A list of permissions and what its folder may add to it.
struct TPermissions {
  std::unique_ptr<void, TLocalFree> Descriptor;
  SECURITY_DESCRIPTOR_CONTROL Control = 0;
};

/// Without a descriptor where the file system has none or does not show it.
TPermissions PermissionsOf(const std::wstring& path) {
  PSECURITY_DESCRIPTOR descriptor = nullptr;
  if (GetNamedSecurityInfoW(path.c_str(), SE_FILE_OBJECT, DACL_SECURITY_INFORMATION, nullptr, nullptr,
                            nullptr, nullptr, &descriptor) != ERROR_SUCCESS)
    return {};
  TPermissions permissions{std::unique_ptr<void, TLocalFree>(descriptor)};
  DWORD revision = 0;
  GetSecurityDescriptorControl(descriptor, &permissions.Control, &revision);
  return permissions;
}

/// Exactly those: the calls that let the folder add its own would let others read what they could not.
bool SetPermissions(const std::wstring& path, const TPermissions& permissions) {
  // The system keeps the mark of an inherited list only for who says that he knows about it.
  if (permissions.Control & SE_DACL_AUTO_INHERITED)
    SetSecurityDescriptorControl(permissions.Descriptor.get(), SE_DACL_AUTO_INHERIT_REQ,
                                 SE_DACL_AUTO_INHERIT_REQ);
  return SetFileSecurityW(path.c_str(), DACL_SECURITY_INFORMATION, permissions.Descriptor.get());
}

/// A new file that disappears with this object unless it took the target's place.
class TTemporaryFile {
 public:
  /// Throws when the target's directory takes no new file.
  explicit TTemporaryFile(const TTarget& target) : target_(target) {
    // One of that name was left behind by a process of the same number that was killed.
    while (!file_.Open(path_ = NewName(), GENERIC_WRITE, CREATE_NEW))
      Check(GetLastError() == ERROR_FILE_EXISTS);
  }
  TTemporaryFile(const TTemporaryFile&) = delete;
  TTemporaryFile& operator=(const TTemporaryFile&) = delete;
  ~TTemporaryFile() {
    file_.Close();
    if (!path_.empty()) DeleteFileW(path_.c_str());
  }

  /// What may not be handed on stays as the folder gives it to a new file; but a list that is protected from just that
  /// must not be lost.
  void TakePermissions() const {
    const auto permissions = PermissionsOf(target_.Path);
    Check(!permissions.Descriptor || SetPermissions(path_, permissions) ||
          !(permissions.Control & SE_DACL_PROTECTED));
    SetFileAttributesW(path_.c_str(), GetFileAttributesW(target_.Path.c_str()));
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
    Check(RetryOnSharingViolation({ERROR_SHARING_VIOLATION, ERROR_ACCESS_DENIED}, [this] {
      return MoveFileExW(path_.c_str(), target_.Path.c_str(),
                         MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH);
    }));
    path_.clear();
  }

 private:
  std::wstring NewName() const { return ToWideFileName(target_.Folder() + NewTemporaryName()); }
  void Check(bool succeeded) const {
    if (!succeeded) FailToWrite(target_.Shown, GetLastError());
  }

  const TTarget target_;
  std::wstring path_;
  TFile file_;
};

}  // namespace

void WriteFileAtomically(const std::string& path, const std::string& contents) {
  const auto target = FindTarget(path);
  TTemporaryFile file(target);
  if (target.Exists) file.TakePermissions();
  file.Write(contents);
  file.Replace();
  RemoveStaleTemporaryFiles(target.Folder());
}

bool IsProcessRunning(unsigned long process) {
  const auto handle = OpenProcess(SYNCHRONIZE, FALSE, process);
  if (!handle) return GetLastError() != ERROR_INVALID_PARAMETER;
  // A process that has ended keeps its number as long as somebody has a handle of it.
  const bool ended = WaitForSingleObject(handle, 0) == WAIT_OBJECT_0;
  CloseHandle(handle);
  return !ended;
}
unsigned long CurrentProcess() { return GetCurrentProcessId(); }

std::string ReadWholeFile(const std::string& path) {
  TFile file;
  if (!file.Open(ToWideFileName(path), GENERIC_READ, OPEN_EXISTING)) FailToRead(path, GetLastError());
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

}  // namespace kestrel
