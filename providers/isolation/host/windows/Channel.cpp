#include "isolation/host/Channel.h"

#include <mutex>

#include "isolation/host/windows/ArrivalEvent.h"

namespace kestrel::isolation::channel {
namespace {

HANDLE pipe = nullptr;
std::mutex writing;
OVERLAPPED arriving{};
FrameHeader header{};
bool awaited = false;

struct Event {
  HANDLE Handle = CreateEventW(nullptr, TRUE, FALSE, nullptr);
};

/// Repeats a transfer until all bytes are done.
template <class Transfer>
void All(char* next, std::size_t size, Transfer transfer) {
  static thread_local const Event event;
  while (size > 0) {
    OVERLAPPED overlapped{};
    overlapped.hEvent = event.Handle;
    DWORD done = 0;
    constexpr std::size_t kChunk = 256 << 10;
    const auto now = static_cast<DWORD>(size < kChunk ? size : kChunk);
    if (!transfer(next, now, &overlapped) && GetLastError() != ERROR_IO_PENDING) EndProcess();
    if (!GetOverlappedResult(pipe, &overlapped, &done, TRUE) || done == 0) EndProcess();
    next += done;
    size -= done;
  }
}

void ReadAll(void* place, std::size_t size) {
  All(static_cast<char*>(place), size, [](char* bytes, DWORD count, OVERLAPPED* overlapped) {
    return ReadFile(pipe, bytes, count, nullptr, overlapped);
  });
}

void WriteAll(const void* bytes, std::size_t size) {
  All(static_cast<char*>(const_cast<void*>(bytes)), size,
      [](char* from, DWORD count, OVERLAPPED* overlapped) {
        return WriteFile(pipe, from, count, nullptr, overlapped);
      });
}

LONG WINAPI EndWithFault(EXCEPTION_POINTERS* fault) {
  TerminateProcess(GetCurrentProcess(), fault->ExceptionRecord->ExceptionCode);
  return EXCEPTION_EXECUTE_HANDLER;
}

}  // namespace

[[noreturn]] void EndProcess() {
  TerminateProcess(GetCurrentProcess(), 0);
  ExitProcess(0);
}

void Open(const std::string& argument) {
  // No dialogs about crashes: the client reports them.
  SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX | SEM_NOOPENFILEERRORBOX);
  SetUnhandledExceptionFilter(EndWithFault);
  pipe = reinterpret_cast<HANDLE>(static_cast<std::uintptr_t>(std::stoull(argument)));
  SetHandleInformation(pipe, HANDLE_FLAG_INHERIT, 0);
  arriving.hEvent = CreateEventW(nullptr, TRUE, FALSE, nullptr);
}

HANDLE ArrivalEvent() {
  if (awaited) return arriving.hEvent;
  awaited = true;
  const HANDLE event = arriving.hEvent;
  arriving = {};
  arriving.hEvent = event;
  if (!ReadFile(pipe, &header, sizeof header, nullptr, &arriving) && GetLastError() != ERROR_IO_PENDING)
    EndProcess();
  return event;
}

Frame Read() {
  DWORD got = 0;
  if (awaited && !GetOverlappedResult(pipe, &arriving, &got, TRUE)) EndProcess();
  awaited = false;
  ReadAll(reinterpret_cast<char*>(&header) + got, sizeof header - got);
  Frame frame{header.Kind, {}};
  frame.Body.resize(header.Size);
  ReadAll(frame.Body.data(), frame.Body.size());
  return frame;
}

void Write(FrameKind kind, const std::string& body) {
  const FrameHeader front{static_cast<std::uint32_t>(body.size()), kind};
  const std::lock_guard lock(writing);
  WriteAll(&front, sizeof front);
  WriteAll(body.data(), body.size());
}

void ExpectClose() {}

}  // namespace kestrel::isolation::channel
