// The child processes of the test program.
#pragma once

#include <sys/types.h>

#include <filesystem>
#include <fstream>
#include <vector>

namespace kestrel::isolation {

inline std::vector<pid_t> ChildProcessIds() {
  std::vector<pid_t> children;
  for (const auto& task : std::filesystem::directory_iterator("/proc/self/task")) {
    std::ifstream list(task.path() / "children");
    for (pid_t child; list >> child;) children.push_back(child);
  }
  return children;
}

}  // namespace kestrel::isolation
