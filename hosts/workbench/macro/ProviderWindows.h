// The windows of a provider that runs in a process of its own, as the macro player works them: that process has the other
// half of this (ProviderWindowServer), which runs only when it finds the folder's name in its environment.
//
// The two meet in a folder of files, which works the same on every system: `front` holds the title of the window in front
// while there is one, `step` a line of a macro, `answer` what came of it.
#pragma once

#include <string>

#include "workbench/macro/MacroParser.h"

namespace kestrel::workbench {

inline constexpr const char* kExchangeFolder = "KESTREL_PROVIDER_WINDOWS";

class TProviderWindows {
 public:
  /// Makes the folder and names it in the environment: processes that start from now on see it.
  TProviderWindows();
  ~TProviderWindows();
  TProviderWindows(const TProviderWindows&) = delete;
  TProviderWindows& operator=(const TProviderWindows&) = delete;

  /// The title of the window in front; empty when none is shown.
  std::string Front() const;
  /// A step is being done there, whatever is in front by now.
  bool IsBusy() const { return busy_; }
  /// Does the step there; empty, or why it could not (yet).
  std::string Run(const TMacroStep& step);

 private:
  std::string folder_;
  bool busy_ = false;
};

}  // namespace kestrel::workbench
