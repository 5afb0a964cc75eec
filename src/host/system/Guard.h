// Calls into other people's code that must not take the program along.
#pragma once

#include <string>

namespace kestrel {

/// Calls body(data).  A C++ exception comes out as ever.  A fault that the system raises instead - an access violation,
/// a division by zero, the exception of another compiler's or language's run-time - ends the call, and its name is the
/// result; empty after a call that returned.  What lies between the fault and this call is skipped, not unwound: call
/// nothing but the foreign code in `body`.
///
/// Breakpoints are left to the debugger.  Faults of other threads, and what ends the process at once (abort), cannot be
/// stopped.  On POSIX no fault can: it is a signal there, and going on behind one is undefined.
///
/// Not for LoadModule and UnloadModule: the system's loader stops what a library's own start raises, and unlocks itself.
std::string CallWithSehFrame(void (*body)(void* data), void* data);

/// The same with a function object that takes nothing.
template <class Body>
std::string CallWithSehFrame(Body body) {
  return CallWithSehFrame([](void* data) { (*static_cast<Body*>(data))(); }, &body);
}

}  // namespace kestrel
