// Gives up connections that do not come about, or stay silent.  libsvn waits in connect(), read() and write() without a
// limit of its own, and without asking whether to go on.
#pragma once

#include <optional>

#include "subversion/svn/Limits.h"

namespace kestrel::svnscc {

/// Scoped: while it lives, a thread of the provider watches what the calling thread waits for, and shuts a TCP connection
/// down that exceeds a limit, so that libsvn's call fails.  One at a time; nested ones do nothing.  Without effect where
/// the system does not show what a thread waits for.
class ConnectionWatch {
 public:
  ConnectionWatch();
  ConnectionWatch(const ConnectionWatch&) = delete;
  ConnectionWatch& operator=(const ConnectionWatch&) = delete;
  ~ConnectionWatch();

  static void SetLimits(const Limits& limits);
  enum class Reason { NotConnected, Silent };
  /// Why a connection was shut down since the last call; nullopt if none was.
  static std::optional<Reason> DrainReason();

 private:
  const bool isOutermost_;
};

}  // namespace kestrel::svnscc
