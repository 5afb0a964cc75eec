// The Windows headers in the order that they require.
#pragma once

// clang-format off
#include <windows.h>
#include <aclapi.h>
#include <lmcons.h>
#include <shellapi.h>
// clang-format on

namespace kestrel {

/// Deleter for memory that a Windows function allocated for its caller.
struct TLocalFree {
  void operator()(void* memory) const { LocalFree(memory); }
};

}  // namespace kestrel
