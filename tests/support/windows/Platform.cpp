// What the tests need of the platform.
#include <stdlib.h>
#include <windows.h>

#include <stdexcept>

#include "support/Environment.h"
#include "support/PlainUser.h"
#include "support/RunProgram.h"
#include "support/TemporaryFolder.h"
#include "support/TestRegistry.h"
#include "system/windows/Wide.h"

namespace kestrel {

namespace {

/// As programs take their command line apart: backslashes count only before a quote.
std::string Quoted(const std::string& word) {
  std::string quoted = "\"";
  std::size_t backslashes = 0;
  for (const char c : word) {
    if (c == '"') quoted.append(backslashes + 1, '\\');
    backslashes = c == '\\' ? backslashes + 1 : 0;
    quoted += c;
  }
  return quoted.append(backslashes, '\\') + '"';
}

HANDLE CreateInheritable(const std::string& path) {
  SECURITY_ATTRIBUTES inheritable{sizeof inheritable, nullptr, TRUE};
  return CreateFileW(ToWide(path).c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, &inheritable,
                     CREATE_NEW, 0, nullptr);
}

void Require(LSTATUS error, const char* what) {
  if (error != ERROR_SUCCESS) throw std::runtime_error(what + (": error " + std::to_string(error)));
}

}  // namespace

void SetEnvironment(const char* name, const char* value) { _putenv_s(name, value ? value : ""); }

TPlainUser::TPlainUser() = default;
TPlainUser::~TPlainUser() = default;

// The real registry: its two roots lead to fresh keys of the user's.
struct TTestRegistry::TImpl {
  const std::string Home = "Software\\Kestrel tests\\" + std::to_string(GetCurrentProcessId());

  void Redirect(HKEY root, HKEY user, const char* name) const {
    HKEY key = nullptr;
    Require(RegCreateKeyExA(user, (Home + "\\" + name).c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key,
                            nullptr),
            "create");
    Require(RegOverridePredefKey(root, key), "redirect");
    RegCloseKey(key);
  }
};

TTestRegistry::TTestRegistry() : impl_(std::make_unique<TImpl>()) {
  HKEY user = nullptr;
  Require(RegOpenCurrentUser(KEY_ALL_ACCESS, &user), "open");
  RegDeleteTreeA(user, impl_->Home.c_str());  // what a killed process of the same number left
  impl_->Redirect(HKEY_LOCAL_MACHINE, user, "machine");
  impl_->Redirect(HKEY_CURRENT_USER, user, "user");
  RegCloseKey(user);
}

TTestRegistry::~TTestRegistry() {
  for (HKEY root : {HKEY_LOCAL_MACHINE, HKEY_CURRENT_USER}) RegOverridePredefKey(root, nullptr);
  RegDeleteTreeA(HKEY_CURRENT_USER, impl_->Home.c_str());
}

TProgramResult RunProgram(const std::string& program, const std::vector<std::string>& arguments) {
  const TTemporaryFolder folder;
  const auto output = folder / "output", errors = folder / "errors";
  auto line = Quoted(program);
  for (const auto& argument : arguments) line += " " + Quoted(argument);
  STARTUPINFOW start{};
  start.cb = sizeof start;
  start.dwFlags = STARTF_USESTDHANDLES;
  start.hStdOutput = CreateInheritable(output);
  start.hStdError = CreateInheritable(errors);
  PROCESS_INFORMATION process{};
  const bool started = CreateProcessW(nullptr, ToWide(line).data(), nullptr, nullptr, TRUE, 0, nullptr,
                                      nullptr, &start, &process);
  CloseHandle(start.hStdOutput);
  CloseHandle(start.hStdError);
  if (!started) throw std::runtime_error("cannot start " + program);
  WaitForSingleObject(process.hProcess, INFINITE);
  DWORD status = 0;
  GetExitCodeProcess(process.hProcess, &status);
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
  return {static_cast<int>(status), ReadWholeFile(output), ReadWholeFile(errors)};
}

}  // namespace kestrel
