// Fetching one old revision of a file.
#pragma once

#include <svn_types.h>

#include <string>

namespace kestrel::svnscc {

class ProviderContext;

/// What GetRevision did.
struct GotRevision {
  std::string Copy;  // where the local edits are kept; empty when there were none
};
/// Makes the local file what it was in `revision`.  A file that is checked out gets it as an edit, so that it can be
/// checked in; any other is fetched at that revision.  Local edits are kept in a copy beside the file.
GotRevision GetRevision(ProviderContext& context, const std::string& path, svn_revnum_t revision);

}  // namespace kestrel::svnscc
