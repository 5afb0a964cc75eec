// workbench-player: the workbench that can also play macros, for tests and tours.  Not installed.
#include "workbench/macro/Player.h"
#include "workbench/windows/Program.h"

using namespace kestrel;
using namespace kestrel::workbench;

int main(int argc, char** argv) {
  TPlayer player;
  return RunWorkbench(argc, argv, &player);
}
