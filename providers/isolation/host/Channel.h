// The host's end of the channel to the library.
#pragma once

#include "isolation/Wire.h"

namespace kestrel::isolation::channel {

/// Opens the channel that the program's last argument names, and makes the program end when the client ends.  To be called
/// before all others.
void Open(const std::string& argument);
/// Waits for the next frame.  Not thread-safe.  Ends the program when the client has ended.
Frame Read();
/// POSIX: the descriptor, for event loops.
int Descriptor();
/// Sends a frame.  Thread-safe.
void Write(FrameKind kind, const std::string& body);
/// Ends the program at once.  Exit handlers are not run: they may wait for what a fault left locked.
[[noreturn]] void EndProcess();
/// From now on the program has a few seconds to end after the client closes the channel.
void ExpectClose();

}  // namespace kestrel::isolation::channel
