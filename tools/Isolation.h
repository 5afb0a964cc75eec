// Registering providers so that they run in a process of their own: copies of the isolating library, one for each.
#pragma once

#include <string>

/// Makes the library that stands for provider `name` at `path`, or replaces it; where it is.  Throws std::runtime_error
/// with a sentence.
std::string Isolate(const std::string& name, const std::string& path);
/// The real provider's path when `library` stands for one, otherwise empty.
std::string IsolatedProvider(const std::string& library);
/// Removes the library that Isolate made for provider `name`, if it did.
void RemoveIsolated(const std::string& name);
