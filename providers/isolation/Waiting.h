// Keeps the client's program responsive while a call runs.
#pragma once

#include <chrono>
#include <functional>
#include <string>

namespace kestrel::isolation {

struct PendingCall {
  /// Works on the call for at most the given time; returns true when the call has finished.  Does not throw.
  std::function<bool(std::chrono::milliseconds)> Step;
  /// Whether the provider shows a window of its own that responds.
  std::function<bool()> ProviderShowsWindow;
  /// The provider's most recent message.
  std::function<std::string()> LastLine;
  /// Called when the user presses Stop.
  std::function<void()> Stop;
  std::string Provider;
  std::string Call;
};

/// Returns when the call has finished.  Windows are repainted meanwhile; a call that takes long gets a window with Stop.
void WaitForCall(PendingCall call);

/// Shows a message of the provider in a box and waits for the user.  Returns false if the program has no windows.
bool ShowMessageBox(const std::string& provider, const std::string& text);

}  // namespace kestrel::isolation
