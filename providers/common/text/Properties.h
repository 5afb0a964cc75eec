// What is known of a file or folder, as texts.
#pragma once

#include <string>
#include <utility>
#include <vector>

namespace kestrel {

using NamedTexts = std::vector<std::pair<std::string, std::string>>;

struct NodeProperties {
  NamedTexts Facts;       // label and value; only what is known
  NamedTexts Properties;  // name and value of versioned properties
};

}  // namespace kestrel
