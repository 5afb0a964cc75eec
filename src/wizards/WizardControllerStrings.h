// Texts that both wizards share.
#pragma once

#include "system/Text.h"

namespace kestrel::addin {

inline constexpr TResString sWizardNext{"&Next >"};

}  // namespace kestrel::addin
