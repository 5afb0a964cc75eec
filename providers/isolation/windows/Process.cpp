#include "isolation/Process.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <cstdio>
#include <stdexcept>
#include <utility>
#include <vector>

#include "system/windows/Api.h"
#include "system/windows/Wide.h"

namespace kestrel::isolation {
namespace {

constexpr DWORD kPipeBuffer = 64 << 10;
constexpr std::size_t kChunk = 256 << 10;
constexpr DWORD kExitTimeout = 200;  // ms that the process has to end after its channel closed
constexpr DWORD kDrainTimeout = 50;  // ms for reading what the process sent before it ended

class Handle {
 public:
  explicit Handle(HANDLE handle = nullptr) : handle_(handle == INVALID_HANDLE_VALUE ? nullptr : handle) {}
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;
  ~Handle() { Close(); }
  HANDLE Get() const { return handle_; }
  void Set(HANDLE handle) {
    Close();
    handle_ = handle == INVALID_HANDLE_VALUE ? nullptr : handle;
  }
  HANDLE Release() { return std::exchange(handle_, nullptr); }
  void Close() {
    if (handle_ != nullptr) CloseHandle(handle_);
    handle_ = nullptr;
  }

 private:
  HANDLE handle_;
};

void ThrowUnless(bool done, const std::string& what) {
  if (!done) throw std::runtime_error(what + ": " + SystemMessage(GetLastError()));
}

/// One overlapped transfer.
struct OverlappedTransfer {
  OverlappedTransfer() : Event(CreateEventW(nullptr, TRUE, FALSE, nullptr)) {}
  OVERLAPPED* Start() {
    Overlapped = {};
    Overlapped.hEvent = Event.Get();
    Running = true;
    return &Overlapped;
  }

  Handle Event;
  OVERLAPPED Overlapped{};
  std::vector<char> Bytes;
  bool Running = false;
};

/// Creates a pipe that no other process can open: both ends of its only instance are taken at once.
void MakePipe(Handle& own, Handle& other) {
  static std::atomic<unsigned> count = 0;
  const auto name = ToWide("\\\\.\\pipe\\scc-provider-" + std::to_string(GetCurrentProcessId()) + "-" +
                           std::to_string(GetTickCount64()) + "-" + std::to_string(++count));
  own.Set(CreateNamedPipeW(
      name.c_str(), PIPE_ACCESS_DUPLEX | FILE_FLAG_FIRST_PIPE_INSTANCE | FILE_FLAG_OVERLAPPED,
      PIPE_TYPE_BYTE | PIPE_REJECT_REMOTE_CLIENTS, 1, kPipeBuffer, kPipeBuffer, 0, nullptr));
  ThrowUnless(own.Get() != nullptr, "CreateNamedPipe");
  SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
  other.Set(CreateFileW(name.c_str(), GENERIC_READ | GENERIC_WRITE, 0, &inherited, OPEN_EXISTING,
                        FILE_FLAG_OVERLAPPED, nullptr));
  ThrowUnless(other.Get() != nullptr, "CreateFile");
}

/// Creates a job whose processes end when its last handle is closed, at the latest with this process.
HANDLE MakeJob() {
  const HANDLE job = CreateJobObjectW(nullptr, nullptr);
  JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits{};
  limits.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE;
  SetInformationJobObject(job, JobObjectExtendedLimitInformation, &limits, sizeof limits);
  return job;
}

class WindowsProcess final : public Process {
 public:
  WindowsProcess(const std::string& program, const std::vector<std::string>& arguments) : job_(MakeJob()) {
    Handle other;
    MakePipe(pipe_, other);
    Spawn(program, arguments, other.Get());
  }
  ~WindowsProcess() override {
    if (detached_) {
      job_.Release();  // the handle stays open: the process ends by itself, at the latest with this one
    } else {
      Kill();
    }
    CancelIoEx(pipe_.Get(), nullptr);
    for (auto* transfer : {&read_, &write_})
      // A buffer that the system still uses must not be freed.
      if ((*transfer)->Running &&
          WaitForSingleObject((*transfer)->Event.Get(), kExitTimeout) != WAIT_OBJECT_0)
        transfer->release();
  }

  bool Transfer(SendBuffer& out, std::string& in, std::size_t room, std::chrono::milliseconds wait) override {
    if (Deliver(in, room)) return true;
    StartWriting(out);
    if (!StartReading()) return Deliver(in, room);
    std::vector<HANDLE> events{read_->Event.Get(), process_.Get()};
    if (write_->Running) events.push_back(write_->Event.Get());
    const auto which = WaitForMultipleObjects(static_cast<DWORD>(events.size()), events.data(), FALSE,
                                              static_cast<DWORD>(wait.count()));
    if (which == WAIT_OBJECT_0 + 2) return FinishWriting();
    const bool ended = which == WAIT_OBJECT_0 + 1;
    if (ended && WaitForSingleObject(read_->Event.Get(), kDrainTimeout) != WAIT_OBJECT_0) return false;
    if (which == WAIT_TIMEOUT) return true;
    return FinishReading() && Deliver(in, room);
  }
  void Kill() override { TerminateProcess(process_.Get(), 1); }
  void Detach() override { detached_ = true; }
  std::string ExitDescription() override {
    if (WaitForSingleObject(process_.Get(), kExitTimeout) != WAIT_OBJECT_0) {
      Kill();
      return {};
    }
    DWORD code = 0;
    GetExitCodeProcess(process_.Get(), &code);
    constexpr DWORD kFirstFault = 0xC0000000;
    if (code < kFirstFault) return "exit code " + std::to_string(code);
    char words[32];
    std::snprintf(words, sizeof words, "exception %lx", static_cast<unsigned long>(code));
    return words;
  }

 private:
  void Spawn(const std::string& program, const std::vector<std::string>& arguments, HANDLE channel) {
    SIZE_T size = 0;
    InitializeProcThreadAttributeList(nullptr, 1, 0, &size);
    std::vector<char> memory(size);
    STARTUPINFOEXW start{};
    start.StartupInfo.cb = sizeof start;
    start.lpAttributeList = reinterpret_cast<LPPROC_THREAD_ATTRIBUTE_LIST>(memory.data());
    InitializeProcThreadAttributeList(start.lpAttributeList, 1, 0, &size);
    UpdateProcThreadAttribute(start.lpAttributeList, 0, PROC_THREAD_ATTRIBUTE_HANDLE_LIST, &channel,
                              sizeof channel, nullptr, nullptr);
    const auto name = ToWide(program);
    std::string words = "\"" + program + "\"";
    for (const auto& argument : arguments) words += " \"" + argument + "\"";
    words += " " + std::to_string(reinterpret_cast<std::uintptr_t>(channel));
    auto line = ToWide(words);
    PROCESS_INFORMATION made{};
    const bool done = CreateProcessW(name.c_str(), line.data(), nullptr, nullptr, TRUE,
                                     CREATE_SUSPENDED | EXTENDED_STARTUPINFO_PRESENT | CREATE_NO_WINDOW,
                                     nullptr, nullptr, &start.StartupInfo, &made) != 0;
    const auto error = GetLastError();
    DeleteProcThreadAttributeList(start.lpAttributeList);
    SetLastError(error);
    ThrowUnless(done, program);
    process_.Set(made.hProcess);
    const Handle thread(made.hThread);
    AssignProcessToJobObject(job_.Get(), process_.Get());
    ResumeThread(thread.Get());
  }
  void StartWriting(SendBuffer& out) {
    if (write_->Running || out.Empty()) return;
    const auto size = std::min(out.Bytes.size() - out.Sent, kChunk);
    const auto first = out.Bytes.begin() + static_cast<std::ptrdiff_t>(out.Sent);
    write_->Bytes.assign(first, first + static_cast<std::ptrdiff_t>(size));
    out.Sent += size;
    WriteFile(pipe_.Get(), write_->Bytes.data(), static_cast<DWORD>(size), nullptr, write_->Start());
  }
  bool FinishWriting() {
    DWORD sent = 0;
    write_->Running = false;
    return GetOverlappedResult(pipe_.Get(), &write_->Overlapped, &sent, FALSE) != 0;
  }
  bool StartReading() {
    if (read_->Running) return true;
    read_->Bytes.resize(kPipeBuffer);
    auto* const overlapped = read_->Start();
    if (ReadFile(pipe_.Get(), read_->Bytes.data(), kPipeBuffer, nullptr, overlapped)) return true;
    read_->Running = GetLastError() == ERROR_IO_PENDING;
    return read_->Running;
  }
  bool FinishReading() {
    DWORD got = 0;
    read_->Running = false;
    if (!GetOverlappedResult(pipe_.Get(), &read_->Overlapped, &got, FALSE)) return false;
    ready_.append(read_->Bytes.data(), got);
    return got > 0;
  }
  /// Moves received bytes to `in`.
  bool Deliver(std::string& in, std::size_t room) {
    const auto size = std::min(room, ready_.size());
    in.append(ready_, 0, size);
    ready_.erase(0, size);
    return size > 0;
  }

  Handle job_, pipe_, process_;
  std::unique_ptr<OverlappedTransfer> read_ = std::make_unique<OverlappedTransfer>(),
                                      write_ = std::make_unique<OverlappedTransfer>();
  std::string ready_;
  bool detached_ = false;
};

}  // namespace

std::unique_ptr<Process> Process::Start(const std::string& program,
                                        const std::vector<std::string>& arguments) {
  return std::make_unique<WindowsProcess>(program, arguments);
}

}  // namespace kestrel::isolation
