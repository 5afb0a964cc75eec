// The main thread between two calls: the toolkit's message loop, so that windows which a provider leaves open live.
#pragma once

namespace isolation {

/// Calls `serve` whenever something has come, until it answers false.  With `windows` messages are handled meanwhile.
void ServeUntilBye(bool windows, bool (*serve)());

}  // namespace isolation
