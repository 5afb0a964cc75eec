#include "isolation/host/Channel.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <mutex>
#include <thread>

#include "isolation/ChannelFd.h"

namespace kestrel::isolation::channel {
namespace {

constexpr int kHighFd = 300;  // out of the way of providers that close low descriptors
constexpr unsigned kExitSeconds = 5;

int socketFd = -1;
std::mutex writing;
std::atomic<bool> closing = false;

/// Runs in a thread of its own, as the main thread may never return from the provider.
void EndWithOtherSide(int fd) {
  pollfd hangUp{fd, 0, 0};
  while (poll(&hangUp, 1, -1) < 0 && errno == EINTR) {
  }
  if (closing) sleep(kExitSeconds);
  EndProcess();
}

void ReadAll(void* place, std::size_t size) {
  auto* next = static_cast<char*>(place);
  while (size > 0) {
    const auto got = recv(socketFd, next, size, 0);
    if (got < 0 && errno == EINTR) continue;
    if (got <= 0) EndProcess();
    next += got;
    size -= static_cast<std::size_t>(got);
  }
}

void WriteAll(const void* bytes, std::size_t size) {
  const auto* next = static_cast<const char*>(bytes);
  while (size > 0) {
    const auto sent = send(socketFd, next, size, MSG_NOSIGNAL);
    if (sent < 0 && errno == EINTR) continue;
    if (sent <= 0) EndProcess();
    next += sent;
    size -= static_cast<std::size_t>(sent);
  }
}

}  // namespace

[[noreturn]] void EndProcess() { _exit(0); }

void Open(const std::string&) {
  socketFd = fcntl(kChannelFd, F_DUPFD_CLOEXEC, kHighFd);
  if (socketFd < 0) EndProcess();
  close(kChannelFd);
  std::thread(EndWithOtherSide, socketFd).detach();
}

int Descriptor() { return socketFd; }

Frame Read() {
  FrameHeader header{};
  ReadAll(&header, sizeof header);
  Frame frame{header.Kind, {}};
  frame.Body.resize(header.Size);
  ReadAll(frame.Body.data(), frame.Body.size());
  return frame;
}

void Write(FrameKind kind, const std::string& body) {
  const FrameHeader header{static_cast<std::uint32_t>(body.size()), kind};
  const std::lock_guard lock(writing);
  WriteAll(&header, sizeof header);
  WriteAll(body.data(), body.size());
}

void ExpectClose() { closing = true; }

}  // namespace kestrel::isolation::channel
