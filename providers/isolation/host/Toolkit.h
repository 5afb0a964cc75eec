// Starting the toolkit where there may be no display.
#pragma once

namespace isolation {

/// Whether windows can be shown.
bool ToolkitStarts(int* argc, char*** argv);

}  // namespace isolation
