// The repositories that this user chose most recently.
#pragma once

#include <string>
#include <vector>

namespace kestrel::svnscc {

/// Most recent first.
std::vector<std::string> RecentRepositories();
/// Moves `url` to the front; ignores a list that cannot be stored.
void RememberRepository(const std::string& url);

}  // namespace kestrel::svnscc
