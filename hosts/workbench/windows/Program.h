// The program without its main function.
#pragma once

namespace kestrel::workbench {

class IPlayer;

/// Runs the workbench; returns its exit code.  `player` may be null.
int RunWorkbench(int argc, char** argv, IPlayer* player);

}  // namespace kestrel::workbench
