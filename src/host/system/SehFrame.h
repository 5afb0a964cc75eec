// Calls into foreign code whose crash must not end the program.
#pragma once

#include <string>

namespace kestrel {

/// Calls body(data) inside a frame for structured exceptions (Windows).  C++ exceptions propagate unchanged.  A structured
/// exception, such as an access violation, a division by zero or the exception of another language's runtime, ends the
/// call; its name is returned.  Returns an empty string if the call returned.  Frames between the fault and this call are
/// not unwound, so `body` must contain nothing but the foreign call.
///
/// Breakpoints are left to the debugger.  Faults in other threads and abort() cannot be caught.  On POSIX faults are
/// signals and are not caught at all, because execution cannot continue after one.
///
/// Do not wrap LoadModule or UnloadModule: the system's loader handles faults in a library's initialization itself.
std::string CallWithSehFrame(void (*body)(void* data), void* data);

/// Overload for a function object without parameters.
template <class Body>
std::string CallWithSehFrame(Body body) {
  return CallWithSehFrame([](void* data) { (*static_cast<Body*>(data))(); }, &body);
}

}  // namespace kestrel
