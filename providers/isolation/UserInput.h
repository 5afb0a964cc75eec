// Pending keyboard and mouse input.
#pragma once

namespace kestrel::isolation {

/// Discards it without handling it.
void DiscardUserInput();

}  // namespace kestrel::isolation
