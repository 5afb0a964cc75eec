// Logins that servers ask for.  They are kept in memory until the process ends; nothing is written to disk.  User
// interface thread only.
#pragma once

#include <optional>
#include <string>

namespace kestrel::svnscc {

/// What the user answers; texts are UTF-8.
struct Login {
  std::string User;
  std::string Password;
};

/// What a server asks.
struct LoginQuestion {
  std::string Realm;  ///< how the server names what the login is for
  std::string User;   ///< the name to propose
  bool Refused;       ///< the server did not accept the last answer
};

/// Asks the user; nothing when he cancels, or when no window can be shown.
using LoginPrompt = std::optional<Login> (*)(const LoginQuestion& question);

/// Without a prompt, a server that wants a password refuses.
void SetLoginPrompt(LoginPrompt prompt);

/// The login for `question`: the one given earlier for the same realm and user, unless the server refused it; else the
/// user's answer, which is remembered.
std::optional<Login> FindLogin(const LoginQuestion& question);

}  // namespace kestrel::svnscc
