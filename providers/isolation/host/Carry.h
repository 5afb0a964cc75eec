// Carries calls out.
#pragma once

#include <string>

#include "Wire.h"
#include "host/Library.h"

namespace isolation {

/// Loads the provider; why it failed, or an empty text.
std::string LoadProvider(const std::string& path);
/// Carries out a call; the answer's body.
std::string Carry(const std::string& call);

/// A fault of the system's has ended a call: nobody knows what the provider left behind, so no more is to be carried out.
bool IsDamaged();

}  // namespace isolation
