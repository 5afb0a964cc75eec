// A variable of the process's environment, set (or, with nullptr, removed) until the end of the scope.
#pragma once

#include <cstdlib>
#include <optional>
#include <string>

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
  void Set(const char* value) const { value ? setenv(name_, value, 1) : unsetenv(name_); }

  const char* name_;
  std::optional<std::string> before_;
};
