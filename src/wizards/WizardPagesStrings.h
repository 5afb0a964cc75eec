// Texts that both wizards share.
#pragma once

#include "host/Text.h"

constexpr TResString sWizardNext{"&Next >"};
