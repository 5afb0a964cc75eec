#include "subversion/svn/Login.h"

#include <map>
#include <utility>

namespace kestrel::svnscc {
namespace {

LoginPrompt askUser = nullptr;

/// By realm and proposed user: one process may work for several users.
std::map<std::pair<std::string, std::string>, Login>& Remembered() {
  static std::map<std::pair<std::string, std::string>, Login> logins;
  return logins;
}

}  // namespace

void SetLoginPrompt(LoginPrompt prompt) { askUser = prompt; }

std::optional<Login> FindLogin(const LoginQuestion& question) {
  const std::pair key(question.Realm, question.User);
  const auto known = Remembered().find(key);
  if (!question.Refused && known != Remembered().end()) return known->second;
  if (askUser == nullptr) return std::nullopt;
  auto login = askUser(question);
  if (login) Remembered()[key] = *login;
  return login;
}

}  // namespace kestrel::svnscc
