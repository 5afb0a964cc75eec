// How much memory stands behind the pointers of the API.
#pragma once

#include <algorithm>
#include <cstddef>

#include "Wire.h"

namespace isolation {

/// The add-in gives every text 4,096 bytes with a guard of 1,024 behind them, every status array 65,536 words with a guard
/// of 256.  It is known by its name for itself, and what a provider writes there arrives there, so that the guard tells.
/// The buffers of other clients end where the API says.
constexpr const char* kAddIn = "TSCCProvider";
constexpr std::size_t kAddInText = 4096 + 1024;
constexpr std::size_t kAddInWords = kMostNames + 256;
/// What stands behind the last word that a client has given.
constexpr scc::Long kUntouched = 0x5A5A5A5A;

inline std::size_t CountOf(scc::Long count) { return static_cast<std::size_t>(std::max(count, 0)); }

}  // namespace isolation
