// Texts of the options page.
#pragma once

#include "host/Text.h"

constexpr TResString sSCMOptionsPage{"Source Control Options"};
constexpr TResString sSCMProvidersLabel{"&Source Code Control Providers"};
constexpr TResString sSCMUserNameLabel{"&User Name"};
constexpr TResString sNoProvidersAvailable{"No providers available"};
constexpr TResString sProviderCreateError{"Provider create error: %s"};
constexpr TResString sNoOptionsStore{"The host keeps no settings for packages"};
