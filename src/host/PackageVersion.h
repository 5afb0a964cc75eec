// An entry point that a run-time package may export besides those of Services.h.
#pragma once

namespace kestrel {

/// With C linkage: returns the package's version, a literal of the package.
using TPackageVersion = const char* (*)();
inline constexpr const char* kPackageVersion = "PackageVersion";

}  // namespace kestrel
