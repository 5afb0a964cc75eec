// workbench: a small IDE that loads run-time packages.
#include <cstdio>
#include <exception>
#include <string>

#include "system/System.h"
#include "workbench/macro/MacroParser.h"
#include "workbench/model/ModelStrings.h"
#include "workbench/windows/App.h"
#include "workbench/windows/FrameStrings.h"
#include "workbench/windows/Version.h"

using namespace kestrel;
using namespace kestrel::workbench;

namespace {

/// Prints what the user only wanted to know; whether there was something.
bool PrintInformation(const TCommandLine& line) {
  if (!line.Help && !line.Version && !line.MacroHelp) return false;
  PrepareConsole();
  if (line.Help) std::printf("%s", sUsage.Text);
  if (line.Version) std::printf("workbench %s\n", kWorkbenchVersion);
  if (line.MacroHelp)
    for (const auto& row : MacroVerbs()) std::printf("%-22s %s\n", row.Name.data(), row.Help.data());
  return true;
}

/// What it returns is the program's exit code.
int Fail(int code, const std::string& text) {
  PrepareConsole();
  std::fputs(text.c_str(), stderr);
  return code;
}

int RunProgram(const TCommandLine& line, char* program) {
  if (!line.Macro.empty()) PrepareConsole();  // what it did is printed
  wxApp::SetInstance(new TWorkbenchApp(line));
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

int main(int argc, char** argv) {
  TCommandLine line;
  try {
    line = TCommandLine::Parse(CommandLineArguments(argc, argv));
  } catch (const std::exception& e) {
    return Fail(kExitUsage, std::string("workbench: ") + e.what() + "\n" + sUsage.Text);
  }
  if (PrintInformation(line)) return 0;
  try {
    return RunProgram(line, argv[0]);
  } catch (const std::exception& e) {
    return Fail(kExitFailed, std::string("workbench: ") + e.what() + "\n");
  }
}
