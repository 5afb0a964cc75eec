// What long work is doing, in a small window of its own.
#pragma once

#include <chrono>
#include <memory>
#include <string>

#include "expert/ExpertForms.h"

class TProgressForm;

/// Shows nothing for the first half second.  The window that then appears takes neither the focus nor input, and is
/// brought up to date ten times a second at most; it is painted between the files, when no provider call is running.
class TProgress final : public IProgress {
 public:
  TProgress(std::string caption, std::size_t total);
  TProgress(const TProgress&) = delete;
  TProgress& operator=(const TProgress&) = delete;
  ~TProgress() override;

  void Step(std::size_t done, const std::string& what) override;

 private:
  using TClock = std::chrono::steady_clock;

  std::string caption_;
  std::size_t total_;
  TClock::time_point next_;  // when the window is brought up to date again
  TProgressForm* form_ = nullptr;
};
