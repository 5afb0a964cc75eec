#include "workbench/model/CommandLine.h"

#include <CLI/CLI.hpp>

#include "workbench/model/ModelStrings.h"

namespace kestrel::workbench {

void TCommandLine::AddTo(CLI::App& parser) {
  parser.allow_windows_style_options(false);  // paths may begin with a slash
  parser.add_option("FILE", File, sFileHelp);
  parser.add_option("--package", Packages, sPackageHelp)->option_text("PATH")->allow_extra_args(false);
  parser.footer(sPackagesHelp);
}

}  // namespace kestrel::workbench
