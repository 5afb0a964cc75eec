// The player's access to the windows of an isolated provider. The provider's process has the other side,
// ProviderWindowServer, if the environment names the folder for the exchange.
//
// The two exchange files in that folder, which works on every platform: `front` holds the title of the window in front
// while there is one, `step` a line of a macro, `answer` its result.
#pragma once

#include <string>

#include "workbench/macro/MacroParser.h"

namespace kestrel::workbench {

inline constexpr const char* kExchangeFolder = "KESTREL_PROVIDER_WINDOWS";

class TProviderWindows {
 public:
  /// Creates the folder and names it in the environment of processes started from now on.
  TProviderWindows();
  ~TProviderWindows();
  TProviderWindows(const TProviderWindows&) = delete;
  TProviderWindows& operator=(const TProviderWindows&) = delete;

  /// The title of the window in front; empty if none is shown.
  std::string Front() const;
  /// Whether a step is being executed.
  bool IsBusy() const { return busy_; }
  /// Executes the step; returns an empty string, or why it is not possible (yet).
  std::string Run(const TMacroStep& step);

 private:
  std::string folder_;
  bool busy_ = false;
};

}  // namespace kestrel::workbench
