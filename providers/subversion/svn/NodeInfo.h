// One file or folder of the repository, in any revision.  A `place` is a local path inside a working copy, or an
// address.  All of this asks the repository unless said otherwise, and throws Failure.
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

svn_opt_revision_t Newest();
/// What the working copy has of it, without the local changes.  Local paths only; nothing is asked.
svn_opt_revision_t Pristine();
svn_opt_revision_t Numbered(svn_revnum_t revision);

/// What a client's file name stands for.
struct ControlledNode {
  std::string Path;   // local
  std::string Place;  // Path, or the address of what was never fetched
  bool IsLocal() const { return Path == Place; }
};
/// Throws Failure when the name is not under control.
ControlledNode RequireControlled(ProviderContext& context, const char* name);

/// Throws Failure unless the node had the same name in `revision`: an update to a revision in which it had
/// another would take it away.
void RequireSameName(ProviderContext& context, const ControlledNode& node, svn_revnum_t revision);

/// The contents as they would stand on disk: line ends and keywords as the file's properties want them.
Contents FetchContents(Client& client, const std::string& place, const svn_opt_revision_t& revision);
/// The local file as it is.
Contents ReadLocalContents(const std::string& path);

struct LockInfo {
  std::string Owner;  // empty: not locked
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
/// The same from the working copy: nothing is asked.
NodeInfo LocalNodeInfo(Client& client, const std::string& path);

/// Versioned properties, by name.
NamedTexts FetchProperties(Client& client, const std::string& place, const svn_opt_revision_t& revision);

LockInfo ToLockInfo(const svn_lock_t* lock);
/// A moment on the user's clock, "2026-11-21 14:05:33"; empty for 0.
std::string LocalTime(apr_time_t when);

}  // namespace kestrel::svnscc
