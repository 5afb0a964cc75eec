// Texts of the options page.
#pragma once

#include "system/Text.h"

namespace kestrel::addin {

inline constexpr TResString sSCMOptionsPage{"Source Control Options"};
inline constexpr TResString sSCMProvidersLabel{"&Source Code Control Providers"};
inline constexpr TResString sSCMUserNameLabel{"&User Name"};
inline constexpr TResString sNoProvidersAvailable{"No providers available"};
inline constexpr TResString sProviderCreateError{"Provider create error: %s"};
inline constexpr TResString sNoOptionsStore{"The host keeps no settings for packages"};

}  // namespace kestrel::addin
