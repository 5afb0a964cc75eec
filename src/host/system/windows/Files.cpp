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

// ReadFile and WriteFile have 32-bit sizes.
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

/// Retries for one second while `attempt` fails with one of the errors `passing`.  Virus scanners and indexers open files
/// for a short time.
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

/// The file to write.
struct TTarget {
  std::string Shown;  ///< as passed by the caller, for messages
  std::wstring Path;  ///< links resolved, so that writing replaces the file and not the link
  bool Exists;

  /// With a trailing delimiter.
  std::string Folder() const { return FromWide(Path.substr(0, Path.find_last_of(L"\\:") + 1)); }
};

/// The name of an open file with links resolved; empty if the file system does not support that, as some virtual disks.
std::wstring FinalName(HANDLE file) {
  constexpr DWORD kLongestPath = 32768;
  std::wstring name(kLongestPath, L'\0');
  const auto size = GetFinalPathNameByHandleW(file, name.data(), kLongestPath, FILE_NAME_NORMALIZED);
  name.resize(size < kLongestPath ? size : 0);
  return name;
}

/// Throws if the file exists and is not writable; MoveFileExW would replace it nevertheless.
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

/// The access control list of a file.
struct TPermissions {
  std::unique_ptr<void, TLocalFree> Descriptor;
  SECURITY_DESCRIPTOR_CONTROL Control = 0;
};

/// Without a descriptor if the file system does not support it or access is denied.
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

/// Sets exactly these permissions.  SetNamedSecurityInfoW would add those that the folder grants, so that other users could
/// read the file.
bool SetPermissions(const std::wstring& path, const TPermissions& permissions) {
  // Windows clears SE_DACL_AUTO_INHERITED unless SE_DACL_AUTO_INHERIT_REQ is set as well.
  if (permissions.Control & SE_DACL_AUTO_INHERITED)
    SetSecurityDescriptorControl(permissions.Descriptor.get(), SE_DACL_AUTO_INHERIT_REQ,
                                 SE_DACL_AUTO_INHERIT_REQ);
  return SetFileSecurityW(path.c_str(), DACL_SECURITY_INFORMATION, permissions.Descriptor.get());
}

/// A new file that is deleted with this object unless Replace() succeeded.
class TTemporaryFile {
 public:
  /// Throws if the file cannot be created in the target's directory.
  explicit TTemporaryFile(const TTarget& target) : target_(target) {
    // A killed process with the same id may have left a file with that name.
    while (!file_.Open(path_ = NewName(), GENERIC_WRITE, CREATE_NEW))
      Check(GetLastError() == ERROR_FILE_EXISTS);
  }
  TTemporaryFile(const TTemporaryFile&) = delete;
  TTemporaryFile& operator=(const TTemporaryFile&) = delete;
  ~TTemporaryFile() {
    file_.Close();
    if (!path_.empty()) DeleteFileW(path_.c_str());
  }

  /// Copies permissions and attributes of the target.  If permissions cannot be copied, the new file has those inherited
  /// from its folder; that is a failure only if the target is protected from inheritance.
  void CopyPermissions() const {
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
  if (target.Exists) file.CopyPermissions();
  file.Write(contents);
  file.Replace();
  RemoveStaleTemporaryFiles(target.Folder());
}

bool IsProcessRunning(unsigned long process) {
  const auto handle = OpenProcess(SYNCHRONIZE, FALSE, process);
  if (!handle) return GetLastError() != ERROR_INVALID_PARAMETER;
  // The id of a process that has ended stays valid while there is a handle to it.
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
