#include "subversion/svn/ConnectionWatch.h"

#include <netinet/in.h>
#include <netinet/tcp.h>
#include <signal.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <condition_variable>
#include <fstream>
#include <mutex>
#include <string>
#include <thread>
#include <utility>

namespace kestrel::svnscc {
namespace {

using std::chrono::milliseconds;
using Clock = std::chrono::steady_clock;

constexpr milliseconds kPeriod{250};

/// The file descriptor for which a thread waits in one of the calls that libsvn makes for a connection, or -1.
int AwaitedFile(pid_t thread) {
  constexpr std::array kCalls{SYS_connect, SYS_read, SYS_write, SYS_writev};
  std::ifstream file("/proc/self/task/" + std::to_string(thread) + "/syscall");
  long call = -1;  // the file contains "running" if the thread does not wait
  int descriptor = -1;
  if (!(file >> call >> std::hex >> descriptor)) return -1;
  return std::find(kCalls.begin(), kCalls.end(), call) != kCalls.end() ? descriptor : -1;
}

std::optional<tcp_info> ReadTcpInfo(int descriptor) {
  tcp_info info{};
  socklen_t size = sizeof info;
  if (descriptor < 0 || getsockopt(descriptor, IPPROTO_TCP, TCP_INFO, &info, &size) != 0) return std::nullopt;
  return info;
}

class Watcher {
 public:
  /// Never destroyed: a process may end, or fork, while its thread runs.
  static Watcher& Instance() {
    static Watcher& watcher = *new Watcher;
    return watcher;
  }

  bool Begin() {
    const std::lock_guard lock(mutex_);
    if (thread_ != 0) return false;
    thread_ = static_cast<pid_t>(syscall(SYS_gettid));
    if (isAsleep_) wake_.notify_one();
    return true;
  }
  void End() {
    const std::lock_guard lock(mutex_);
    thread_ = 0;
  }
  void SetLimits(const Limits& limits) {
    const std::lock_guard lock(mutex_);
    limits_ = limits;
  }
  std::optional<ConnectionWatch::Reason> DrainReason() {
    const std::lock_guard lock(mutex_);
    return std::exchange(reason_, std::nullopt);
  }

 private:
  Watcher() {
    // The client's signals must not be handled on this thread.
    sigset_t all, before;
    sigfillset(&all);
    pthread_sigmask(SIG_SETMASK, &all, &before);
    std::thread([this] { Run(); }).detach();
    pthread_sigmask(SIG_SETMASK, &before, nullptr);
  }

  [[noreturn]] void Run() {
    std::unique_lock lock(mutex_);
    for (;;) {
      isAsleep_ = true;
      wake_.wait(lock, [&] { return thread_ != 0; });
      isAsleep_ = false;
      // Stays awake for one more period after a call: the next one often follows at once.
      for (; thread_ != 0; wake_.wait_for(lock, kPeriod)) Look();
    }
  }

  void Look() {
    const int awaited = AwaitedFile(thread_);
    const auto info = ReadTcpInfo(awaited);
    const bool isConnecting = info && info->tcpi_state == TCP_SYN_SENT;
    if (!isConnecting) connectingSince_.reset();
    if (!info) return;
    if (isConnecting) {
      if (!connectingSince_) connectingSince_ = Clock::now();
      if (Clock::now() - *connectingSince_ >= limits_.Connect)
        GiveUp(awaited, ConnectionWatch::Reason::NotConnected);
    } else if (milliseconds(std::min(info->tcpi_last_data_recv, info->tcpi_last_data_sent)) >=
               limits_.Silence) {
      GiveUp(awaited, ConnectionWatch::Reason::Silent);
    }
  }

  void GiveUp(int descriptor, ConnectionWatch::Reason reason) {
    reason_ = reason;
    shutdown(descriptor, SHUT_RDWR);
  }

  std::mutex mutex_;
  std::condition_variable wake_;
  pid_t thread_ = 0;  // that makes a call; 0 if none
  bool isAsleep_ = false;
  Limits limits_;
  std::optional<ConnectionWatch::Reason> reason_;
  std::optional<Clock::time_point> connectingSince_;
};

}  // namespace

ConnectionWatch::ConnectionWatch() : isOutermost_(Watcher::Instance().Begin()) {}
ConnectionWatch::~ConnectionWatch() {
  if (isOutermost_) Watcher::Instance().End();
}
void ConnectionWatch::SetLimits(const Limits& limits) { Watcher::Instance().SetLimits(limits); }
std::optional<ConnectionWatch::Reason> ConnectionWatch::DrainReason() {
  return Watcher::Instance().DrainReason();
}

}  // namespace kestrel::svnscc
