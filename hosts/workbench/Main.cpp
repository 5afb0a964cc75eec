// workbench: a small IDE that loads run-time packages.
#include "workbench/windows/Program.h"

using namespace kestrel;
using namespace kestrel::workbench;

int main(int argc, char** argv) { return RunWorkbench(argc, argv, nullptr); }
