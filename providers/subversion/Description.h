// What there is to tell of one file or folder: for the window of its properties.
#pragma once

#include "Nodes.h"

namespace svnscc {

struct Description {
  /// Label and value; only what is known.
  std::vector<std::pair<std::string, std::string>> Facts;
  PropertyList Properties;
};

/// Of a client's file or folder.  What the repository does not answer is told from the working copy.
Description Describe(Session& session, const ControlledNode& node);
/// Of an address.
Description Describe(Client& client, const std::string& url);

/// What SCC status bits mean, in words.
std::string StateWords(scc::Long bits, bool onDisk);

}  // namespace svnscc
