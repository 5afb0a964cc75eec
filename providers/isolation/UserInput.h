// Keys and clicks that wait to be handled.
#pragma once

namespace isolation {

/// Throws them away.
void DropUserInput();

}  // namespace isolation
