// The program's end of the channel.
#pragma once

#include "Wire.h"

namespace isolation::link {

/// To be called first: takes over the channel that the last argument names, and ends the program when the other side
/// ends.
void Take(const std::string& argument);
/// Waits for the next frame.  One thread at a time.  Ends the program when the other side has.
Frame Read();
/// POSIX: the channel, to be watched for what comes.
int Descriptor();
/// From any thread; frames do not mix.
void Write(Kind kind, const std::string& body);
/// The other side's end is no accident any more, but the program's own end may take a few seconds only.
void Leave();

}  // namespace isolation::link
