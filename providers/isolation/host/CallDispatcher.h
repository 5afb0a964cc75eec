// Loads the provider and calls it.
#pragma once

#include <string>

#include "isolation/Wire.h"
#include "system/Library.h"

namespace kestrel::isolation {

/// Loads the provider; returns the reason if that fails, otherwise an empty text.
std::string LoadProvider(const std::string& path, TDependencySearch search);
/// Executes the call in the body of a Call frame; returns the body of the Answer.
std::string DispatchCall(const std::string& call);

/// True after a structured exception in a call: the state of the provider is unknown, so the process has to end.
bool HasFaulted();

}  // namespace kestrel::isolation
