#include "workbench/windows/Program.h"

#include <CLI/CLI.hpp>
#include <cstdio>
#include <exception>
#include <string>

#include "system/Paths.h"
#include "system/System.h"
#include "workbench/windows/App.h"
#include "workbench/windows/FrameStrings.h"
#include "workbench/windows/Player.h"
#include "workbench/windows/Version.h"

namespace kestrel::workbench {

namespace {

/// Prints an error; returns `code`.
int Fail(int code, const std::string& text) {
  PrepareConsole();
  std::fputs(text.c_str(), stderr);
  return code;
}

/// `player` is null unless it plays.
int RunProgram(TCommandLine line, IPlayer* player, char* program) {
  if (player) PrepareConsole();  // its steps are printed
  wxApp::SetInstance(new TWorkbenchApp(std::move(line), player));
  int count = 1;  // the toolkit has no options of its own here
  char* arguments[] = {program, nullptr};
  if (!wxEntryStart(count, arguments)) return Fail(kExitNoDisplay, sNoDisplay.str() + "\n");
  int code = kExitFailed;
  if (wxTheApp->CallOnInit()) {
    code = wxTheApp->OnRun();
    wxTheApp->OnExit();
  }
  wxEntryCleanup();
  return code;
}

}  // namespace

int RunWorkbench(int argc, char** argv, IPlayer* player) {
  const auto words = CommandLineArguments(argc, argv);
  TCommandLine line;
  CLI::App parser(sProgramHelp, ExtractFileName(argv[0]));
  parser.get_formatter()->label("TEXT", "");
  parser.set_help_flag("-h,--help", sHelpHelp);
  parser.set_version_flag("--version", Format(sVersion, {kWorkbenchVersion}), sVersionHelp);
  parser.failure_message(
      [](const CLI::App*, const CLI::Error& error) { return Format(sWrongUsage, {error.what()}); });
  line.AddTo(parser);
  if (player) player->AddOptions(parser);
  try {
    parser.parse(std::vector<std::string>(words.rbegin(), words.rend()));
    return RunProgram(std::move(line), player && player->IsRequested() ? player : nullptr, argv[0]);
  } catch (const CLI::Error& error) {
    PrepareConsole();
    return parser.exit(error) == 0 ? 0 : kExitUsage;
  } catch (const std::exception& e) {
    return Fail(kExitFailed, std::string("workbench: ") + e.what() + "\n");
  }
}

}  // namespace kestrel::workbench
