// A provider host process: starts it, transfers bytes, ends it.  One implementation per platform.
#pragma once

#include <chrono>
#include <memory>
#include <string>
#include <vector>

namespace kestrel::isolation {

/// Bytes to be sent.
struct SendBuffer {
  std::string Bytes;
  std::size_t Sent = 0;

  bool Empty() const { return Sent == Bytes.size(); }
};

class Process {
 public:
  /// Starts `program` (absolute path).  It inherits one end of a private channel and the three standard
  /// streams, nothing else, and ends when this process ends.  Throws std::runtime_error with the system's message.
  static std::unique_ptr<Process> Start(const std::string& program,
                                        const std::vector<std::string>& arguments);
  /// Closes the channel and kills the process unless it has been detached.
  virtual ~Process() = default;

  /// Sends what it can of `out` and appends at most `room` received bytes to `in`; waits at most `wait` for either.  Returns
  /// false when the process or its channel has ended and everything that it sent is in `in`.
  virtual bool Transfer(SendBuffer& out, std::string& in, std::size_t room,
                        std::chrono::milliseconds wait) = 0;
  /// Ends the process at once.
  virtual void Kill() = 0;
  /// Lets the process outlive this object, because it has been told to end.
  virtual void Detach() = 0;
  /// Describes how the process ended: "exit code 3", "signal 11 (Segmentation fault)"; empty if that is unknown or it only
  /// closed the channel.  Ends a process that is still running.
  virtual std::string ExitDescription() = 0;
};

}  // namespace kestrel::isolation
