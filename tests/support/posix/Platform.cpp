// What the tests need of the platform.
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <stdexcept>

#include "support/Environment.h"
#include "support/PlainUser.h"
#include "support/RunProgram.h"
#include "support/TemporaryFolder.h"
#include "support/TestRegistry.h"

namespace kestrel {

void SetEnvironment(const char* name, const char* value) { value ? setenv(name, value, 1) : unsetenv(name); }

TPlainUser::TPlainUser() {
  constexpr uid_t kNobody = 65534;
  changed_ = geteuid() == 0 && seteuid(kNobody) == 0;
}

TPlainUser::~TPlainUser() {
  if (changed_ && seteuid(0) != 0) _exit(1);  // nobody could clean up
}

struct TTestRegistry::TImpl {
  TTemporaryFolder Folder;
  TEnvironmentVariable Variable{"CORVANE_REGISTRY_DIR", Folder.Path().c_str()};
};

TTestRegistry::TTestRegistry() : impl_(std::make_unique<TImpl>()) {}
TTestRegistry::~TTestRegistry() = default;

TProgramResult RunProgram(const std::string& program, const std::vector<std::string>& arguments) {
  const TTemporaryFolder folder;
  const auto output = folder / "output", errors = folder / "errors";
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, output.c_str(), O_WRONLY | O_CREAT, 0600);
  posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, errors.c_str(), O_WRONLY | O_CREAT, 0600);
  std::vector<char*> words{const_cast<char*>(program.c_str())};
  for (const auto& argument : arguments) words.push_back(const_cast<char*>(argument.c_str()));
  words.push_back(nullptr);
  pid_t process = 0;
  const int failed = posix_spawn(&process, program.c_str(), &actions, nullptr, words.data(), environ);
  posix_spawn_file_actions_destroy(&actions);
  if (failed) throw std::runtime_error("cannot start " + program);
  int status = 0;
  waitpid(process, &status, 0);
  return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, ReadWholeFile(output), ReadWholeFile(errors)};
}

}  // namespace kestrel
