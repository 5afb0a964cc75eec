// Facts and versioned properties of a file or folder.
#pragma once

#include "common/text/Properties.h"
#include "subversion/svn/NodeInfo.h"

namespace kestrel::svnscc {

/// Of a local file or folder; falls back to the working copy if the repository cannot be contacted.  Throws Failure.
NodeProperties DescribeNode(ProviderContext& context, const ControlledNode& node);
/// Of a URL.  Throws Failure.
NodeProperties DescribeNode(Client& client, const std::string& url);

/// SCC status bits as text.
std::string StateWords(scc::Long bits, bool onDisk);

}  // namespace kestrel::svnscc
