// Get, and updates for other commands.
#include <svn_dirent_uri.h>

#include <algorithm>
#include <map>
#include <ranges>

#include "subversion/commands/CommandStrings.h"
#include "subversion/commands/CommandTable.h"
#include "subversion/commands/Commands.h"
#include "subversion/commands/TemporaryRename.h"
#include "subversion/project/OpenProject.h"
#include "subversion/svn/LocalStatus.h"
#include "subversion/svn/NodeInfo.h"
#include "subversion/svn/NonUtf8Names.h"
#include "subversion/svn/SvnStrings.h"
#include "subversion/svn/WorkingCopyLocks.h"

namespace kestrel::svnscc {
namespace {

enum class Depth { Keep, Set };

void UpdateTo(ProviderContext& context, const std::vector<std::string>& paths, svn_depth_t depth,
              Depth change, const svn_opt_revision_t& revision = Newest()) {
  const Pool pool;
  context.Svn().Run(svn_client_update4(nullptr, ToArray(paths, pool), &revision, depth,
                                       /*depth_is_sticky*/ change == Depth::Set, /*ignore_externals*/ FALSE,
                                       /*allow_unver_obstructions*/ TRUE, /*adds_as_modification*/ TRUE,
                                       /*make_parents*/ TRUE, context.ClientContext(), pool));
}

/// A get that leaves a conflict has failed.
void RequireNoConflict(ProviderContext& context, const std::string& path) {
  const LocalStatus local = ReadLocalStatus(context, path);
  if (local.IsConflicted()) Require(StateOf(local), Command::Get);
}

std::vector<std::string> FilesBelow(const StatusTable& walked, const std::string& folder, Below below) {
  if (walked.Result < 0) throw Failure(walked.Result, sNotAsked);
  auto files = walked.Files();
  std::erase_if(files, [&](const std::string& file) {
    return below == Below::Everything ? !svn_dirent_is_ancestor(folder.c_str(), file.c_str())
                                      : ParentOf(file) != folder;
  });
  return files;
}

/// Moves the files aside that would obstruct an update of the folder.
std::vector<MovedObstruction> MoveObstructionsBelow(ProviderContext& context, const std::string& folder,
                                                    Below below) {
  const StatusTable walked = WalkProject(context);
  std::vector<MovedObstruction> rooms;
  for (const auto& file : FilesBelow(walked, folder, below))
    if (StateOf(context, file, walked.Of(file)) == FileState::InTheWay) rooms.emplace_back(context, file);
  return rooms;
}

/// Whether libsvn failed on a name in the folder that is not UTF-8; it can update single files then.
bool IsFromNonUtf8Name(const Failure& failure, const std::string& folder) {
  return failure.Has(APR_EINVAL) && !NamesNotUtf8(folder).empty();
}

void UpdateEach(ProviderContext& context, const std::string& folder, Below below,
                const svn_opt_revision_t& revision) {
  const StatusTable walked = WalkProject(context);
  for (const auto& file : FilesBelow(walked, folder, below))
    if (walked.Of(file).NeedsGet || revision.kind == svn_opt_revision_number)
      UpdateTo(context, {file}, svn_depth_unknown, Depth::Keep, revision);
}

/// False if the files have to be fetched one by one.
bool UpdateProject(ProviderContext& context) {
  const std::string folder = context.CurrentProject().Folder;
  try {
    UpdateTo(context, {folder}, svn_depth_infinity, Depth::Set);
  } catch (const Failure& failure) {
    if (!IsFromNonUtf8Name(failure, folder)) throw;
    ReleaseOwnLocks(context);
    return false;
  }
  ResolveFoldersBelow(context, folder);
  return true;
}

/// Whether the folder has subfolders in the working copy, which setting a smaller depth would remove.
bool HoldsFolders(ProviderContext& context, const std::string& folder) {
  const auto known = LocalEntries(context, folder);
  return std::any_of(known.begin(), known.end(),
                     [&](const auto& entry) { return entry.second.IsFolder && entry.first != folder; });
}

/// Gets the files of a folder without setting its depth.
void GetFilesIn(ProviderContext& context, const std::string& folder, const svn_opt_revision_t& revision) {
  UpdateTo(context, {folder}, svn_depth_files, Depth::Keep, revision);
  const StatusTable walked = WalkProject(context);
  std::vector<std::string> missing;
  for (const auto& file : walked.Files())
    if (ParentOf(file) == folder && !walked.Of(file).IsHere) missing.push_back(file);
  if (!missing.empty()) UpdateTo(context, missing, svn_depth_unknown, Depth::Keep, revision);
}

void UpdateFolder(ProviderContext& context, const std::string& path, Below below,
                  const svn_opt_revision_t& revision) {
  const LocalStatus local = ReadLocalStatus(context, path);
  if (below == Below::Everything)
    UpdateTo(context, {path}, svn_depth_infinity, Depth::Set, revision);
  else if (local.Depth >= svn_depth_files)
    UpdateTo(context, {path}, svn_depth_files, Depth::Keep, revision);
  else if (HoldsFolders(context, path))
    GetFilesIn(context, path, revision);
  else
    UpdateTo(context, {path}, svn_depth_files, Depth::Set, revision);
}

void ReportConflicts(ProviderContext& context, const std::string& folder, Outcome& outcome) {
  for (const auto& [path, status] : LocalEntries(context, folder)) {
    if ((status.Bits & scc::SCC_STATUS_MERGED) == 0) continue;
    const LocalStatus local = ReadLocalStatus(context, path);
    if (local.Victim == path || local.Modified)
      outcome.Try(path, [&, &file = path] { RequireNoConflict(context, file); });
  }
}

void GetFolder(ProviderContext& context, const std::string& path, Below below,
               const svn_opt_revision_t& revision, Outcome& outcome) {
  ResolveFoldersAbove(context, {path});
  const bool wasKnown = ReadLocalStatus(context, path).IsControlled();
  {
    const auto rooms = MoveObstructionsBelow(context, path, below);
    try {
      UpdateFolder(context, path, below, revision);
    } catch (const Failure& failure) {
      // libsvn fails on a path that it has just removed; a retry succeeds.
      const bool stumbled = failure.Has(SVN_ERR_WC_PATH_NOT_FOUND);
      if (!stumbled && !IsFromNonUtf8Name(failure, path)) throw;
      ReleaseOwnLocks(context);
      (stumbled ? UpdateFolder : UpdateEach)(context, path, below, revision);
    }
  }
  const LocalStatus after = ReadLocalStatus(context, path);
  if (after.IsConflicted() || after.IsControlled()) ResolveFoldersBelow(context, path);
  if (!ReadLocalStatus(context, path).IsControlled()) {
    if (wasKnown) return;  // it was deleted in the repository
    throw Failure(scc::SCC_E_FILENOTCONTROLLED, sNotControlled);
  }
  ReportConflicts(context, path, outcome);
}

void GetOld(ProviderContext& context, const std::string& path, svn_revnum_t revision) {
  if (ReadLocalStatus(context, path).HasLock) throw Failure(scc::SCC_E_FILEISCHECKEDOUT, sStillOut);
  RequireSameName(context, RequireControlled(context, path.c_str()), revision);
  UpdateTo(context, {path}, svn_depth_unknown, Depth::Keep, Numbered(revision));
  RequireNoConflict(context, path);
}

void ReportUpToDate(ProviderContext& context, const std::vector<std::string>& paths) {
  context.Out().Info(paths.size() == 1 ? Format(sUpToDate.Text, {context.Label(paths.front())})
                                       : std::string(sAllUpToDate));
}

}  // namespace

void Update(ProviderContext& context, const std::vector<std::string>& paths) {
  UpdateTo(context, paths, svn_depth_unknown, Depth::Keep);
}

void UpdateTo(ProviderContext& context, const std::vector<std::string>& paths,
              const svn_opt_revision_t& revision) {
  UpdateTo(context, paths, svn_depth_unknown, Depth::Keep, revision);
}

// An update of a file costs a connection, as does one of the whole tree.
scc::Long GetFiles(ProviderContext& context, Names names, const CommandOptions& options) {
  Outcome outcome(context);
  const auto paths = outcome.PathsOf(names);
  EnsureWorkingCopy(context);
  ResolveFoldersAbove(context, paths);
  if (SVN_IS_VALID_REVNUM(options.GetRevision)) {
    for (const auto& path : paths) outcome.Try(path, [&] { GetOld(context, path, options.GetRevision); });
    return outcome.Result();
  }
  const Survey survey(context, paths);
  if (survey.Result() < 0) return survey.Result();

  std::vector<std::string> stale;
  std::vector<MovedObstruction> rooms;
  std::map<std::string, FileState> offered;
  for (const auto& path : paths)
    outcome.Try(path, [&] {
      const FileState state = survey.StateOf(path);
      if (RuleFor(state, Command::Get).step == Step::Offer) return void(offered.emplace(path, state));
      const Step step = Require(state, Command::Get);
      if (step == Step::Resolve) MarkResolved(context, path);
      if (step == Step::MoveObstruction) rooms.emplace_back(context, path);
      if (step != Step::Nothing && survey.StatusOf(path).NeedsGet) stale.push_back(path);
    });
  if (stale.empty() && offered.empty() && outcome.Result() == scc::SCC_OK) ReportUpToDate(context, paths);
  if (stale.size() > 1 && survey.AreAllStale(stale) && UpdateProject(context)) {
    for (const auto& path : stale) outcome.Try(path, [&] { RequireNoConflict(context, path); });
  } else {
    for (const auto& path : stale)
      outcome.Try(path, [&] {
        Update(context, {path});
        RequireNoConflict(context, path);
      });
  }
  const auto keys = std::views::keys(offered);
  const bool givenUp = AskToAcceptRepository(context, {keys.begin(), keys.end()});
  for (const auto& path : keys)
    outcome.Try(path, [&] {
      if (!givenUp) Require(offered.at(path), Command::Get);
      AcceptRepository(context, path);
      Update(context, {path});
    });
  return outcome.Result();
}

scc::Long GetFolders(ProviderContext& context, Names names, Below below, const CommandOptions& options) {
  Outcome outcome(context);
  EnsureWorkingCopy(context);
  const auto revision = SVN_IS_VALID_REVNUM(options.GetRevision) ? Numbered(options.GetRevision) : Newest();
  for (const auto& path : outcome.PathsOf(names))
    outcome.Try(path, [&] { GetFolder(context, path, below, revision, outcome); });
  return outcome.Result();
}

}  // namespace kestrel::svnscc
