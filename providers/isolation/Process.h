// The provider's process as the library sees it: bytes to it, bytes from it, and its end.  One implementation per platform.
#pragma once

#include <chrono>
#include <memory>
#include <string>

namespace isolation {

/// Bytes that wait to be sent.
struct Outgoing {
  std::string Bytes;
  std::size_t Sent = 0;

  bool Empty() const { return Sent == Bytes.size(); }
};

class Process {
 public:
  /// Starts `program` (absolute) with one argument.  It gets one end of a private channel, as the program expects it, and
  /// nothing else that this process has open but its three standard streams; it ends with this process.  Throws
  /// std::runtime_error with the system's words.
  static std::unique_ptr<Process> Start(const std::string& program, const std::string& argument);
  /// Closes the channel.  A process that has not ended then does so by itself, or was not asked to and is killed.
  virtual ~Process() = default;

  /// Moves bytes both ways: sends what it can of `out`, appends to `in` at most `room` bytes that came.  Waits at most `wait` until something moves.  False when the process or its channel has ended and all that it
  /// had sent is in `in`.
  virtual bool Move(Outgoing& out, std::string& in, std::size_t room, std::chrono::milliseconds wait) = 0;
  /// Ends it at once.
  virtual void Kill() = 0;
  /// No kill when this object goes: it has been told to end.
  virtual void LetGo() = 0;
  /// After the end, in words: "exit code 3", "signal 11 (Segmentation fault)"; empty when it only closed the channel, or nobody
  /// knows.
  virtual std::string HowItEnded() = 0;
};

}  // namespace isolation
