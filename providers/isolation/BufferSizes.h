// Sizes of the client's buffers behind the pointers of the API.
#pragma once

#include <algorithm>
#include <cstddef>

#include "isolation/Wire.h"

namespace kestrel::isolation {

/// The add-in passes texts of 4,096 bytes with a canary of 1,024 bytes behind them, and status arrays of 65,536 words with a
/// canary of 256 words.  It is recognised by its caller name, and overruns are copied back into its canaries.  The buffers
/// of other clients have the sizes that the API documents.
constexpr const char* kAddInCaller = "TSCCProvider";
constexpr std::size_t kAddInTextSize = 4096 + 1024;
constexpr std::size_t kAddInStatusCount = kMaxNames + 256;
/// Fills the words behind the last one that the client passed, to detect what the provider writes there.
constexpr scc::Long kUnwritten = 0x5A5A5A5A;

/// A file count of the API as a size; negative counts are 0.
inline std::size_t FileCount(scc::Long count) { return static_cast<std::size_t>(std::max(count, 0)); }

}  // namespace kestrel::isolation
