#include "workbench/macro/MacroOptions.h"

#include <CLI/CLI.hpp>

#include "workbench/macro/MacroParser.h"
#include "workbench/macro/MacroStrings.h"

namespace kestrel::workbench {

namespace {

std::string MacroHelp() {
  std::string text;
  for (const auto& row : MacroVerbs()) {
    std::string name(row.Name);
    name.resize(23, ' ');
    text += (text.empty() ? "" : "\n") + name + std::string(row.Help);
  }
  return text;
}

}  // namespace

void TMacroOptions::AddTo(CLI::App& parser) {
  parser.add_option("--play", Macro, sPlayHelp)->type_name("FILE");
  parser.add_option("--screenshots", Screenshots, sScreenshotsHelp)->type_name("FOLDER");
  parser.add_flag_callback(
      "--macro-help", [] { throw CLI::CallForVersion(MacroHelp(), 0); }, sMacroHelpHelp);
}

}  // namespace kestrel::workbench
