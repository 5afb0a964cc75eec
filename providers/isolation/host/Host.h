// The program that runs a provider for another process, apart from its main function.
#pragma once

#include <functional>
#include <memory>

class wxEvtHandler;

namespace kestrel::isolation {

/// Makes the object that operates the program's windows in place of a user.
using PlayerMaker = std::function<std::unique_ptr<wxEvtHandler>()>;

/// Serves the client until it disconnects; returns the exit code of the program.  `makePlayer`, if any, is called once the
/// toolkit runs with windows; its result is deleted before the toolkit ends.
int RunHost(int argc, char** argv, const PlayerMaker& makePlayer = {});

}  // namespace kestrel::isolation
