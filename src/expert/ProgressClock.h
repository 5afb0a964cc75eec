// How often progress is shown.
#pragma once

#include <chrono>

namespace kestrel::addin {

/// Limits the updates of a display: the first after a delay, further ones at intervals.
class TProgressClock {
 public:
  using TTime = std::chrono::steady_clock::time_point;
  using TDuration = std::chrono::milliseconds;

  TProgressClock(TTime start, TDuration delay, TDuration interval) : delay_(delay), interval_(interval) {
    Restart(start);
  }
  /// Whether to show or update the display at `now`.
  bool Due(TTime now) {
    if (now < next_) return false;
    next_ = now + interval_;
    return true;
  }
  /// Begins a new delay.
  void Restart(TTime now) { next_ = now + delay_; }

 private:
  TDuration delay_;
  TDuration interval_;
  TTime next_;
};

}  // namespace kestrel::addin
