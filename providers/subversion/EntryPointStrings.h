// Texts of the entry points.
#pragma once

#include "host/Text.h"

// Identity
constexpr TResString sProviderName{"Subversion"};
constexpr TResString sAuxPathLabel{"Repository:"};

// ProviderContext
constexpr TResString sUnknownFault{"The provider failed for an unknown reason."};
