// The provider's process and the frames that go to and fro.
#pragma once

#include <chrono>
#include <memory>
#include <optional>
#include <string>

#include "Place.h"
#include "Process.h"
#include "Wire.h"

namespace isolation {

class Child {
 public:
  /// Starts the process.  Throws std::runtime_error when there is none.
  explicit Child(const Place& place);
  Child(const Child&) = delete;
  Child& operator=(const Child&) = delete;

  void Send(Kind kind, const std::string& body);
  /// The next frame, when it is complete within `wait`.  An answer may have `answerLimit` bytes.  Throws WireError for a
  /// frame that is longer than its kind allows.
  std::optional<Frame> Receive(std::chrono::milliseconds wait, std::size_t answerLimit);
  /// It has ended, and every frame that it had sent has been received.
  bool Ended() const { return ended_; }
  void Kill() { process_->Kill(); }
  void SayBye();
  std::string HowItEnded() { return process_->HowItEnded(); }

 private:
  std::size_t Missing(std::size_t answerLimit) const;

  std::unique_ptr<Process> process_;
  Outgoing out_;
  std::string in_;
  bool ended_ = false;
};

}  // namespace isolation
