// workbench: a small IDE that loads run-time packages.
#include <cstdio>
#include <exception>

#include "workbench/model/ModelStrings.h"
#include "workbench/windows/App.h"
#include "workbench/windows/FrameStrings.h"
#include "workbench/windows/Version.h"

namespace {

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
    line = TCommandLine::Parse({argv + 1, argv + argc});
  } catch (const std::exception& e) {
    std::fprintf(stderr, "workbench: %s\n%s", e.what(), sUsage.Text);
    return kExitUsage;
  }
  if (line.Help || line.Version) {
    std::printf("%s", line.Help ? sUsage.Text : "workbench " WORKBENCH_VERSION "\n");
    return 0;
  }
  return RunProgram(line, argv[0]);
}
