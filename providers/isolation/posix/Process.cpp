#include "isolation/Process.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <mutex>
#include <stdexcept>
#include <vector>

#include "isolation/ChannelFd.h"

extern "C" {  // missing in the header of glibc 2.36
#include <sys/pidfd.h>
}

namespace kestrel::isolation {
namespace {

constexpr int kExitTimeout = 200;  // ms that the process has to end after its channel closed

/// Processes that were told to end; reaps them without waiting.
class DetachedProcesses {
 public:
  static void Add(pid_t process) {
    const std::lock_guard lock(mutex_);
    processes_.push_back(process);
  }
  static void Reap() {
    const std::lock_guard lock(mutex_);
    std::erase_if(processes_, [](pid_t process) { return waitpid(process, nullptr, WNOHANG) != 0; });
  }

 private:
  // Never destroyed: clients may uninitialise providers during static destruction.
  static inline std::mutex& mutex_ = *new std::mutex;
  static inline std::vector<pid_t>& processes_ = *new std::vector<pid_t>;
};

class Handle {
 public:
  explicit Handle(int fd = -1) : fd_(fd) {}
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;
  ~Handle() { Close(); }
  int Get() const { return fd_; }
  void Set(int fd) {
    Close();
    fd_ = fd;
  }
  void Close() {
    if (fd_ >= 0) close(fd_);
    fd_ = -1;
  }

 private:
  int fd_;
};

void ThrowOnError(int error, const char* what) {
  if (error != 0) throw std::runtime_error(std::string(what) + ": " + std::strerror(error));
}

pid_t Spawn(const std::string& program, const std::vector<std::string>& arguments, int channel) {
  posix_spawn_file_actions_t files;
  posix_spawnattr_t attributes;
  posix_spawn_file_actions_init(&files);
  posix_spawnattr_init(&attributes);
  posix_spawn_file_actions_adddup2(&files, channel, kChannelFd);
  posix_spawn_file_actions_addclosefrom_np(&files, kChannelFd + 1);
  sigset_t signals;
  sigemptyset(&signals);
  posix_spawnattr_setsigmask(&attributes, &signals);
  sigfillset(&signals);
  posix_spawnattr_setsigdefault(&attributes, &signals);
  posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
  std::vector<char*> argv{const_cast<char*>(program.c_str())};
  for (const auto& argument : arguments) argv.push_back(const_cast<char*>(argument.c_str()));
  argv.push_back(nullptr);
  pid_t process = 0;
  const int error = posix_spawn(&process, program.c_str(), &files, &attributes, argv.data(), environ);
  posix_spawnattr_destroy(&attributes);
  posix_spawn_file_actions_destroy(&files);
  ThrowOnError(error, program.c_str());
  return process;
}

class PosixProcess final : public Process {
 public:
  PosixProcess(const std::string& program, const std::vector<std::string>& arguments) {
    int ends[2];
    ThrowOnError(socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) == 0 ? 0 : errno, "socketpair");
    channel_.Set(ends[0]);
    const Handle other(ends[1]);
    pid_ = Spawn(program, arguments, other.Get());
    // A process that the provider forks keeps the channel open; the pidfd reports the end of the host itself.
    life_.Set(pidfd_open(pid_, 0));
  }
  ~PosixProcess() override {
    channel_.Close();
    if (ended_ || InForkedCopy()) return;
    if (!detached_) Kill();
    DetachedProcesses::Add(pid_);  // a killed process may take time to end
  }

  bool Transfer(SendBuffer& out, std::string& in, std::size_t room, std::chrono::milliseconds wait) override {
    if (InForkedCopy()) return false;
    pollfd waits[] = {
        {channel_.Get(), static_cast<short>(room > 0 ? POLLIN : 0), 0},
        {life_.Get(), POLLIN, 0},
    };
    if (Send(out)) wait = {};
    if (!out.Empty()) waits[0].events |= POLLOUT;
    const int ready = poll(waits, 2, static_cast<int>(wait.count()));
    if (ready < 0) return errno == EINTR;
    if ((waits[0].revents & POLLOUT) != 0) Send(out);
    if ((waits[0].revents & POLLIN) != 0) return Receive(in, room);
    return waits[0].revents == (waits[0].revents & POLLOUT) && waits[1].revents == 0;
  }
  void Kill() override {
    if (!ended_ && !InForkedCopy()) kill(pid_, SIGKILL);
  }
  void Detach() override { detached_ = true; }
  std::string ExitDescription() override {
    if (ended_ || InForkedCopy()) return exitDescription_;
    ended_ = true;
    pollfd life{life_.Get(), POLLIN, 0};
    const bool byItself = poll(&life, 1, kExitTimeout) > 0;
    if (!byItself) kill(pid_, SIGKILL);
    int status = 0;
    // Fails if the client ignores SIGCHLD.
    if (waitpid(pid_, &status, 0) == pid_ && byItself) exitDescription_ = Words(status);
    return exitDescription_;
  }

 private:
  static std::string Words(int status) {
    if (WIFEXITED(status)) return "exit code " + std::to_string(WEXITSTATUS(status));
    return "signal " + std::to_string(WTERMSIG(status)) + " (" + strsignal(WTERMSIG(status)) + ")";
  }
  /// Returns whether it sent anything.
  bool Send(SendBuffer& out) {
    const auto before = out.Sent;
    while (!out.Empty()) {
      const auto now = send(channel_.Get(), out.Bytes.data() + out.Sent, out.Bytes.size() - out.Sent,
                            MSG_NOSIGNAL | MSG_DONTWAIT);
      if (now <= 0) break;
      out.Sent += static_cast<std::size_t>(now);
    }
    return out.Sent != before;
  }
  bool Receive(std::string& in, std::size_t room) {
    const auto before = in.size();
    in.resize(before + room);
    const auto got = recv(channel_.Get(), in.data() + before, room, MSG_DONTWAIT);
    in.resize(before + (got > 0 ? static_cast<std::size_t>(got) : 0));
    return got > 0 || (got < 0 && (errno == EAGAIN || errno == EINTR));
  }

  /// True in a process forked from the client: the host belongs to the original.
  bool InForkedCopy() const { return getpid() != owner_; }

  const pid_t owner_ = getpid();
  Handle channel_, life_;
  pid_t pid_ = 0;
  bool detached_ = false;
  bool ended_ = false;
  std::string exitDescription_;
};

}  // namespace

std::unique_ptr<Process> Process::Start(const std::string& program,
                                        const std::vector<std::string>& arguments) {
  DetachedProcesses::Reap();
  return std::make_unique<PosixProcess>(program, arguments);
}

}  // namespace kestrel::isolation
