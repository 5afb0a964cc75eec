// What the program was asked to do on its command line.
#pragma once

#include <string>
#include <vector>

namespace kestrel::workbench {

struct TCommandLine {
  bool Help = false;
  bool Version = false;
  bool MacroHelp = false;
  std::vector<std::string> Packages;
  std::string File;
  std::string Macro;
  std::string Screenshots = ".";

  /// Throws std::runtime_error with what is wrong.  `--option=value` and `--option value` are the same; "--" ends the
  /// options.
  static TCommandLine Parse(const std::vector<std::string>& arguments);
};

}  // namespace kestrel::workbench
