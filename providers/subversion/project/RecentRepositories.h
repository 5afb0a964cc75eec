// The repositories that this user chose before.
#pragma once

#include <string>
#include <vector>

namespace kestrel::svnscc {

/// Most recent first.
std::vector<std::string> RecentRepositories();
/// Puts `url` in front.  A list that cannot be stored is no reason to stop anybody.
void RememberRepository(const std::string& url);

}  // namespace kestrel::svnscc
