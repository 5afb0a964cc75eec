// Pending keyboard and mouse input.
#pragma once

namespace isolation {

/// Discards it without handling it.
void DiscardUserInput();

}  // namespace isolation
