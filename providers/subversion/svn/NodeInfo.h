// One file or folder of the repository, in any revision.  A `place` is a local path inside a working copy, or a URL.
// Every function throws Failure; Fetch... contact the repository unless said otherwise.
#pragma once

#include <svn_types.h>

#include <string>
#include <utility>
#include <vector>

#include "common/text/Contents.h"
#include "common/text/Properties.h"
#include "subversion/svn/Client.h"

namespace kestrel::svnscc {

class ProviderContext;

/// A file name of the client, resolved.
struct ControlledNode {
  std::string Path;   // local
  std::string Place;  // Path, or the URL if it was never fetched
  bool IsLocal() const { return Path == Place; }
};
/// Contacts the repository about a file that the working copy does not have.  Throws Failure if `name` is not controlled.
ControlledNode RequireControlled(ProviderContext& context, const char* name);

/// Throws Failure unless the node had the same name in `revision`: an update to a revision in which it had another name
/// would remove it.
void RequireSameName(ProviderContext& context, const ControlledNode& node, svn_revnum_t revision);

/// The contents as an update would write them, with line ends translated and keywords expanded.  Contacts no repository
/// for Pristine().
Contents FetchContents(Client& client, const std::string& place, const svn_opt_revision_t& revision);
/// The local file.
Contents ReadLocalContents(const std::string& path);

struct LockInfo {
  std::string Owner;  // empty if not locked
  std::string Comment;
  apr_time_t Since = 0;
};

struct NodeInfo {
  std::string Url;
  std::string Path;  // in the repository, "/" for its root
  bool IsFolder = false;
  svn_revnum_t Revision = SVN_INVALID_REVNUM;
  svn_revnum_t ChangedRevision = SVN_INVALID_REVNUM;
  apr_time_t ChangedAt = 0;
  std::string ChangedBy;
  LockInfo Lock;
};
NodeInfo FetchNodeInfo(Client& client, const std::string& place, const svn_opt_revision_t& revision);
/// From the working copy alone.
NodeInfo LocalNodeInfo(Client& client, const std::string& path);

/// Versioned properties, sorted by name.
NamedTexts FetchProperties(Client& client, const std::string& place, const svn_opt_revision_t& revision);

LockInfo ToLockInfo(const svn_lock_t* lock);
/// Local time as "2026-11-21 14:05:33"; empty for 0.
std::string LocalTime(apr_time_t when);

}  // namespace kestrel::svnscc
