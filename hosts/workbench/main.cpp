// workbench: a small IDE that loads run-time packages.
#include <cstdio>
#include <exception>

#include "host/System.h"
#include "workbench/macro/MacroParser.h"
#include "workbench/model/ModelStrings.h"
#include "workbench/windows/App.h"
#include "workbench/windows/FrameStrings.h"
#include "workbench/windows/Version.h"

namespace {

/// Prints what the user only wanted to know; whether there was something.
bool PrintInformation(const TCommandLine& line) {
  if (line.Help) std::printf("%s", sUsage.Text);
  if (line.Version) std::printf("workbench %s\n", kWorkbenchVersion);
  if (line.MacroHelp)
    for (const auto& row : MacroVerbs()) std::printf("%-22s %s\n", row.Name.data(), row.Help.data());
  return line.Help || line.Version || line.MacroHelp;
}

int RunProgram(const TCommandLine& line, char* program) {
  wxApp::SetInstance(new TWorkbenchApp(line));
  int count = 1;  // the toolkit has no options of its own here
  char* arguments[] = {program, nullptr};
  if (!wxEntryStart(count, arguments)) {
    std::fprintf(stderr, "%s\n", sNoDisplay.Text);
    return kExitNoDisplay;
  }
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
    std::fprintf(stderr, "workbench: %s\n%s", e.what(), sUsage.Text);
    return kExitUsage;
  }
  if (PrintInformation(line)) return 0;
  try {
    return RunProgram(line, argv[0]);
  } catch (const std::exception& e) {
    std::fprintf(stderr, "workbench: %s\n", e.what());
    return kExitFailed;
  }
}
