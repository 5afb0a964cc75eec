#include "Link.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <mutex>
#include <thread>

#include "HostArguments.h"

namespace isolation::link {
namespace {

constexpr int kHighFd = 300;  // where a provider that closes its standard streams by mistake seldom looks
constexpr unsigned kLastSeconds = 5;

int channel = -1;
std::mutex writing;
std::atomic<bool> leaving = false;

[[noreturn]] void EndNow() { _exit(0); }

/// Also when the main thread never comes back from the provider.
void EndWithOtherSide(int fd) {
  pollfd hangUp{fd, 0, 0};
  while (poll(&hangUp, 1, -1) < 0 && errno == EINTR) {
  }
  if (leaving) sleep(kLastSeconds);
  EndNow();
}

void ReadAll(void* place, std::size_t size) {
  auto* next = static_cast<char*>(place);
  while (size > 0) {
    const auto got = recv(channel, next, size, 0);
    if (got < 0 && errno == EINTR) continue;
    if (got <= 0) EndNow();
    next += got;
    size -= static_cast<std::size_t>(got);
  }
}

void WriteAll(const void* bytes, std::size_t size) {
  const auto* next = static_cast<const char*>(bytes);
  while (size > 0) {
    const auto sent = send(channel, next, size, MSG_NOSIGNAL);
    if (sent < 0 && errno == EINTR) continue;
    if (sent <= 0) EndNow();
    next += sent;
    size -= static_cast<std::size_t>(sent);
  }
}

}  // namespace

void Take(const std::string&) {
  channel = fcntl(kChannelFd, F_DUPFD_CLOEXEC, kHighFd);
  if (channel < 0) EndNow();
  close(kChannelFd);
  std::thread(EndWithOtherSide, channel).detach();
}

int Descriptor() { return channel; }

Frame Read() {
  FrameHeader header{};
  ReadAll(&header, sizeof header);
  Frame frame{header.Of, {}};
  frame.Body.resize(header.Size);
  ReadAll(frame.Body.data(), frame.Body.size());
  return frame;
}

void Write(Kind kind, const std::string& body) {
  const FrameHeader header{static_cast<std::uint32_t>(body.size()), kind};
  const std::lock_guard lock(writing);
  WriteAll(&header, sizeof header);
  WriteAll(body.data(), body.size());
}

void Leave() { leaving = true; }

}  // namespace isolation::link
