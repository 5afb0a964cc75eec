// The system's own headers, in the order they need.
#pragma once

// clang-format off
#include <windows.h>
#include <aclapi.h>
#include <lmcons.h>
#include <shellapi.h>
// clang-format on

namespace kestrel {

/// Deletes what a call of the system allocated for its caller.
struct TLocalFree {
  void operator()(void* memory) const { LocalFree(memory); }
};

}  // namespace kestrel
