// The command line of every workbench.
#pragma once

#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace kestrel::workbench {

struct TCommandLine {
  std::vector<std::string> Packages;  ///< paths; empty for those of the options
  std::string File;                   ///< empty for none

  /// Adds the options and the argument to `parser`, which fills in this object.
  void AddTo(CLI::App& parser);
};

}  // namespace kestrel::workbench
