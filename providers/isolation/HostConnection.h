// The connection to a provider host process: its lifetime and the frames in both directions.
#pragma once

#include <chrono>
#include <memory>
#include <optional>
#include <string>

#include "isolation/Process.h"
#include "isolation/ProxyConfig.h"
#include "isolation/Wire.h"

namespace kestrel::isolation {

class HostConnection {
 public:
  /// Starts the host process.  Throws std::runtime_error when it cannot be started.
  explicit HostConnection(const ProxyConfig& config);
  HostConnection(const HostConnection&) = delete;
  HostConnection& operator=(const HostConnection&) = delete;

  /// Queues a frame; Receive() sends it.
  void Send(FrameKind kind, const std::string& body);
  /// Returns the next frame, or nullopt if none is complete within `wait`.  `answerLimit` bounds the body of an Answer, in
  /// bytes.  Throws WireError for a frame that is longer than its kind allows.
  std::optional<Frame> Receive(std::chrono::milliseconds wait, std::size_t answerLimit);
  /// True when the process has ended and every frame it sent has been received.
  bool Ended() const { return ended_; }
  void Kill() { process_->Kill(); }
  /// Asks the process to end in good order and does not wait for it.
  void Shutdown();
  /// Describes how the process ended; see Process.
  std::string ExitDescription() { return process_->ExitDescription(); }

 private:
  std::size_t MissingBytes(std::size_t answerLimit) const;

  std::unique_ptr<Process> process_;
  SendBuffer out_;
  std::string in_;
  bool ended_ = false;
};

}  // namespace kestrel::isolation
