// What the provider says while a wizard works.
#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "provider/sccapiintf.h"

namespace kestrel::addin {

/// Listens in for as long as it lives; everything still goes where it went before.
class TProviderMessageRecorder final : public IProviderSink {
 public:
  /// `onLine` (may be empty) is called with every line.
  explicit TProviderMessageRecorder(std::function<void(const std::string&)> onLine = {})
      : on_line_(std::move(onLine)), previous_(SetProviderSink(this)) {}
  TProviderMessageRecorder(const TProviderMessageRecorder&) = delete;
  TProviderMessageRecorder& operator=(const TProviderMessageRecorder&) = delete;
  ~TProviderMessageRecorder() override { SetProviderSink(previous_); }

  void Line(TSeverity severity, const std::string& text) override {
    if (previous_) previous_->Line(severity, text);
    if (severity == TSeverity::Error) errors_.push_back(text);
    if (severity == TSeverity::Warning) warnings_.push_back(text);
    if (on_line_) on_line_(text);
  }
  void Box(const std::string& text) override {
    if (previous_) previous_->Box(text);
  }

  /// The errors since the last time.
  std::vector<std::string> DrainErrors() { return std::exchange(errors_, {}); }
  /// The same for its warnings.
  std::vector<std::string> DrainWarnings() { return std::exchange(warnings_, {}); }

 private:
  std::function<void(const std::string&)> on_line_;
  IProviderSink* previous_;
  std::vector<std::string> errors_;
  std::vector<std::string> warnings_;
};

}  // namespace kestrel::addin
