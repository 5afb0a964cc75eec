// The package's dialog: a virtual list with boxes and a comment, as file commands show them.
#pragma once

#include <string>
#include <vector>

class wxWindow;

namespace kestrel::workbench {

struct TCrewChoice {
  bool Accepted = false;
  std::vector<std::string> Files;
  std::string Comment;
};

TCrewChoice AskCrew(const std::vector<std::string>& files);

}  // namespace kestrel::workbench
