// How the client's program lives on while a call runs.
#pragma once

#include <chrono>
#include <functional>
#include <string>

namespace isolation {

struct Wait {
  /// Does what there is to do for at most that long; true when the call is over.  No exception leaves it.
  std::function<bool(std::chrono::milliseconds)> Step;
  /// Whether the provider shows a window of its own now.
  std::function<bool()> ProviderShowsWindow;
  /// The provider's last line of text.
  std::function<std::string()> LastLine;
  /// The user gave up.
  std::function<void()> Stop;
  std::string Provider;
  std::string Call;
};

/// Returns when the call is over.  Keeps windows painted meanwhile, and offers Stop when it takes long.
void Until(const Wait& wait);

}  // namespace isolation
