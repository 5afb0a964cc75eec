// The main thread between calls: it runs the toolkit's event loop, so that windows which a provider leaves open work.
#pragma once

namespace kestrel::isolation {

/// Calls `serve` for each frame until it returns false.  With `windows` it dispatches the toolkit's events meanwhile.
void ServeUntilBye(bool windows, bool (*serve)());

}  // namespace kestrel::isolation
