// What there is to tell of one file or folder: for the window of its properties.
#pragma once

#include "common/text/Properties.h"
#include "subversion/svn/NodeInfo.h"

namespace kestrel::svnscc {

/// Of a client's file or folder.  What the repository does not answer is told from the working copy.
NodeProperties DescribeNode(ProviderContext& context, const ControlledNode& node);
/// Of an address.
NodeProperties DescribeNode(Client& client, const std::string& url);

/// What SCC status bits mean, in words.
std::string StateWords(scc::Long bits, bool onDisk);

}  // namespace kestrel::svnscc
