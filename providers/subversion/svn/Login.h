// Logins that servers ask for, kept in memory until the process ends.  User interface thread only.
#pragma once

#include <optional>
#include <string>

namespace kestrel::svnscc {

/// The user's answer; UTF-8.
struct Login {
  std::string User;
  std::string Password;
};

/// A server's question; UTF-8.
struct LoginQuestion {
  std::string Realm;  ///< the server's name for what the login is for
  std::string User;   ///< the name to propose
  bool Refused;       ///< the server did not accept the last answer
};

/// Asks the user; nullopt if the user cancels, or if no window can be shown.
using LoginPrompt = std::optional<Login> (*)(const LoginQuestion& question);

/// Sets the prompt; without one, a server that wants a password refuses.
void SetLoginPrompt(LoginPrompt prompt);

/// The login given earlier for the same realm and user, unless the server refused it; else the user's answer, which is
/// kept for later.
std::optional<Login> FindLogin(const LoginQuestion& question);

}  // namespace kestrel::svnscc
