// Texts of the entry points.
#pragma once

#include "system/Text.h"

namespace kestrel::svnscc {

// Identity
inline constexpr TResString sProviderName{"Subversion"};
inline constexpr TResString sAuxPathLabel{"Repository:"};

// ProviderContext
inline constexpr TResString sUnknownFault{"The provider failed for an unknown reason."};

}  // namespace kestrel::svnscc
