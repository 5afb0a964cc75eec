// The program without its main function, which decides what it is given.
#pragma once

namespace kestrel::workbench {

class IPlayer;

/// Runs the workbench; returns its exit code.  `player` may be null.
int RunWorkbench(int argc, char** argv, IPlayer* player);

}  // namespace kestrel::workbench
