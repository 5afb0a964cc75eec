#include "support/RunProgram.h"

#include <windows.h>

#include <stdexcept>

#include "support/TemporaryFolder.h"
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

}  // namespace

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
