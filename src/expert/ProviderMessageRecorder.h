// Recording of the provider's messages.
#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "provider/sccapiintf.h"

namespace kestrel::addin {

/// Scoped sink: records provider messages and forwards them to the previous sink.
class TProviderMessageRecorder final : public IProviderSink {
 public:
  /// `onLine` (may be empty) is called for each line.
  explicit TProviderMessageRecorder(std::function<void(const std::string&)> onLine = {})
      : onLine_(std::move(onLine)), previous_(SetProviderSink(this)) {}
  TProviderMessageRecorder(const TProviderMessageRecorder&) = delete;
  TProviderMessageRecorder& operator=(const TProviderMessageRecorder&) = delete;
  ~TProviderMessageRecorder() override { SetProviderSink(previous_); }

  void Line(TSeverity severity, const std::string& text) override {
    if (previous_) previous_->Line(severity, text);
    if (severity == TSeverity::Error) errors_.push_back(text);
    if (severity == TSeverity::Warning) warnings_.push_back(text);
    if (onLine_) onLine_(text);
  }
  void Box(const std::string& text) override {
    if (previous_) previous_->Box(text);
  }

  /// Returns and removes the recorded errors.
  std::vector<std::string> DrainErrors() { return std::exchange(errors_, {}); }
  /// Returns and removes the recorded warnings.
  std::vector<std::string> DrainWarnings() { return std::exchange(warnings_, {}); }

 private:
  std::function<void(const std::string&)> onLine_;
  IProviderSink* previous_;
  std::vector<std::string> errors_;
  std::vector<std::string> warnings_;
};

}  // namespace kestrel::addin
