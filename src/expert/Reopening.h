// When to try again to open a provider project whose opening failed.
#pragma once

#include <chrono>
#include <functional>
#include <string>

#include "scc/sccdefs.h"

namespace kestrel::addin {

using TTimeSource = std::function<std::chrono::steady_clock::time_point()>;

/// The next opening of the menu tries again, but not within a few seconds, and the less often the longer a try takes: the
/// user waits for it.  Failures that only the user can settle, who has just been asked, are not tried again.
class TReopening {
 public:
  explicit TReopening(TTimeSource clock) : clock_(std::move(clock)) {}
  /// An opening of that host project begins.
  void Begin(const std::string& projectFile);
  void End(scc::Long code);
  bool IsDue(const std::string& projectFile) const;

 private:
  TTimeSource clock_;
  std::string projectFile_;
  std::chrono::steady_clock::time_point begin_;
  std::chrono::steady_clock::time_point due_;
  bool failed_ = false;
};

}  // namespace kestrel::addin
