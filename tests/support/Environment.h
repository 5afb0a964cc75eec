// The process's environment.
#pragma once

#include <cstdlib>
#include <optional>
#include <string>

namespace kestrel {

/// Sets a variable of the process's environment; nullptr removes it.
void SetEnvironment(const char* name, const char* value);

/// A variable, set (or, with nullptr, removed) until the end of the scope.
class TEnvironmentVariable {
 public:
  TEnvironmentVariable(const char* name, const char* value) : name_(name) {
    if (const char* before = std::getenv(name)) before_ = before;
    Set(value);
  }
  TEnvironmentVariable(const TEnvironmentVariable&) = delete;
  TEnvironmentVariable& operator=(const TEnvironmentVariable&) = delete;
  ~TEnvironmentVariable() { Set(before_ ? before_->c_str() : nullptr); }

 private:
  void Set(const char* value) const { SetEnvironment(name_, value); }

  const char* name_;
  std::optional<std::string> before_;
};

}  // namespace kestrel
