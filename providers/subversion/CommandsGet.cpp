// Getting files, and updating as a step of other commands.
#include <algorithm>

#include "Commands.h"
#include "LocalStatus.h"
#include "Nodes.h"
#include "OpenProject.h"
#include "SubversionSccStrings.h"

namespace svnscc {
namespace {

enum class Reach { AsItIs, Set };

void UpdateTo(Session& session, const std::vector<std::string>& paths, svn_depth_t depth, Reach reach,
              const svn_opt_revision_t& revision = Newest()) {
  const Pool pool;
  session.Svn().Run(svn_client_update4(nullptr, ToArray(paths, pool), &revision, depth,
                                       /*depth_is_sticky*/ reach == Reach::Set, /*ignore_externals*/ FALSE,
                                       /*allow_unver_obstructions*/ TRUE, /*adds_as_modification*/ TRUE,
                                       /*make_parents*/ TRUE, session.Context(), pool));
}

void GetFolder(Session& session, const std::string& path, Below below, const svn_opt_revision_t& revision) {
  const LocalStatus local = AskLocal(session, path);
  // Setting the reach to a smaller one would drop what is there: only a folder that was not fetched yet is widened.
  const bool widen = below == Below::Everything || local.Depth < svn_depth_files;
  UpdateTo(session, {path}, below == Below::Everything ? svn_depth_infinity : svn_depth_files,
           widen ? Reach::Set : Reach::AsItIs, revision);
  if (!AskLocal(session, path).IsControlled()) throw Failure(scc::SCC_E_FILENOTCONTROLLED, sNotControlled);
}

void GetOld(Session& session, const std::string& path, svn_revnum_t revision) {
  if (AskLocal(session, path).HasLock) throw Failure(scc::SCC_E_FILEISCHECKEDOUT, sStillOut);
  RequireSameName(session, RequireControlled(session, path.c_str()), revision);
  UpdateTo(session, {path}, svn_depth_unknown, Reach::AsItIs, Numbered(revision));
}

/// Whether the paths are all of the project that an update would change.
bool CoverEverything(const StatusTable& statuses, std::vector<std::string> stale) {
  std::sort(stale.begin(), stale.end());
  const auto files = statuses.Files();
  return std::all_of(files.begin(), files.end(), [&](const std::string& file) {
    return !statuses.Of(file).NeedsGet || std::binary_search(stale.begin(), stale.end(), file);
  });
}

void TellUpToDate(Session& session, const std::vector<std::string>& paths) {
  session.Out().Info(paths.size() == 1 ? Format(sUpToDate.Text, {session.Label(paths.front())})
                                       : std::string(sAllUpToDate));
}

}  // namespace

void Update(Session& session, const std::vector<std::string>& paths) {
  UpdateTo(session, paths, svn_depth_unknown, Reach::AsItIs);
}

void UpdateTo(Session& session, const std::vector<std::string>& paths, const svn_opt_revision_t& revision) {
  UpdateTo(session, paths, svn_depth_unknown, Reach::AsItIs, revision);
}

// One walk finds what has to be fetched; a fetch costs a connection per file unless it is the whole tree.
scc::Long GetFiles(Session& session, Names names, const CommandOptions& options) {
  Outcome outcome(session);
  const auto paths = outcome.PathsOf(names);
  EnsureWorkingCopy(session);
  if (SVN_IS_VALID_REVNUM(options.GetRevision)) {
    for (const auto& path : paths) outcome.Try(path, [&] { GetOld(session, path, options.GetRevision); });
    return outcome.Result();
  }
  const StatusTable& statuses = WalkProject(session);
  if (statuses.Result < 0) return statuses.Result;

  std::vector<std::string> stale;
  for (const auto& path : paths) {
    const FileStatus status = statuses.Of(path);
    if (status.Bits == 0)
      outcome.Fail(path, scc::SCC_E_FILENOTCONTROLLED, sNotControlled.Text);
    else if (status.NeedsGet)
      stale.push_back(path);
  }
  if (stale.empty() && outcome.Result() == scc::SCC_OK) TellUpToDate(session, paths);
  if (stale.size() > 1 && CoverEverything(statuses, stale)) {
    UpdateTo(session, {session.CurrentProject().Folder}, svn_depth_infinity, Reach::Set);
  } else {
    for (const auto& path : stale) outcome.Try(path, [&] { Update(session, {path}); });
  }
  return outcome.Result();
}

scc::Long GetFolders(Session& session, Names names, Below below, const CommandOptions& options) {
  Outcome outcome(session);
  EnsureWorkingCopy(session);
  const auto revision = SVN_IS_VALID_REVNUM(options.GetRevision) ? Numbered(options.GetRevision) : Newest();
  for (const auto& path : outcome.PathsOf(names))
    outcome.Try(path, [&] { GetFolder(session, path, below, revision); });
  return outcome.Result();
}

}  // namespace svnscc
