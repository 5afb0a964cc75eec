// Fetching one old revision of a file.
#pragma once

#include <svn_types.h>

#include <string>

namespace kestrel::svnscc {

class ProviderContext;

/// The result of GetRevision.
struct GotRevision {
  std::string Copy;  // the copy of the local edits; empty if there were none
};
/// Replaces a local file by its contents in `revision`: as an edit, to be checked in, if the file is checked out, else by an
/// update to that revision.  Keeps local edits in a copy beside the file.  Throws Failure.
GotRevision GetRevision(ProviderContext& context, const std::string& path, svn_revnum_t revision);

}  // namespace kestrel::svnscc
