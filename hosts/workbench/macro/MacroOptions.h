// The options of a program that can play macros.
#pragma once

#include <string>

namespace CLI {
class App;
}

namespace kestrel::workbench {

struct TMacroOptions {
  std::string Macro;              ///< the file to play; empty for none
  std::string Screenshots = ".";  ///< the folder that screenshots are written to

  /// Adds the options to `parser`, which fills in this object.
  void AddTo(CLI::App& parser);
};

}  // namespace kestrel::workbench
