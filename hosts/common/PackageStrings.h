// Texts about packages that every host shows.
#pragma once

#include "system/Text.h"

namespace kestrel {

inline constexpr TResString sPackageFailure{"%s: %s"};
inline constexpr TResString sUnknownFailure{"unknown error"};
inline constexpr TResString sPackageNotFound{"Package %s does not exist."};
inline constexpr TResString sPackageNotLoaded{"Package %s could not be loaded: %s"};
inline constexpr TResString sPackageNoEntry{"Package %s has no entry point \"%s\" and was not loaded."};
inline constexpr TResString sPackageLeftovers{"Package left %d registrations behind when it was unloaded."};

inline constexpr TResString sNoHelp{"There is no help for %s."};

inline constexpr TResString sCategoryNew{"New Files"};
inline constexpr TResString sCategoryOther{"Other Files"};

}  // namespace kestrel
