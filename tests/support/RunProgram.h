// Another program, run to its end.
#pragma once

#include <string>
#include <vector>

namespace kestrel {

struct TProgramResult {
  int Status;  ///< its exit code
  std::string Output, Errors;
};

/// `arguments` reach the program as they are, whatever characters they hold.
TProgramResult RunProgram(const std::string& program, const std::vector<std::string>& arguments);

}  // namespace kestrel
