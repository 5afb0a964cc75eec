// Getting files, and updating as a step of other commands.
#include <svn_dirent_uri.h>

#include <algorithm>
#include <map>
#include <ranges>

#include "BadNames.h"
#include "CommandTable.h"
#include "Commands.h"
#include "LocalStatus.h"
#include "Nodes.h"
#include "OpenProject.h"
#include "SetAside.h"
#include "SubversionSccStrings.h"
#include "WindowStrings.h"
#include "WorkingCopyLocks.h"

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

/// A get that left a conflict did not do what was asked, whoever caused it.
void RequireNoConflict(Session& session, const std::string& path) {
  const LocalStatus local = AskLocal(session, path);
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

/// The files that an update of the folder would lay its own over, out of its way.
std::vector<MadeRoom> MakeRoomBelow(Session& session, const std::string& folder, Below below) {
  const StatusTable walked = WalkProject(session);
  std::vector<MadeRoom> rooms;
  for (const auto& file : FilesBelow(walked, folder, below))
    if (StateOf(session, file, walked.Of(file)) == FileState::InTheWay) rooms.emplace_back(session, file);
  return rooms;
}

/// Whether libsvn gave up at a name in the folder that is not UTF-8.  Files that are named it can fetch.
bool IsOverBadName(const Failure& failure, const std::string& folder) {
  return failure.Has(APR_EINVAL) && !NamesNotUtf8(folder).empty();
}

void UpdateEach(Session& session, const std::string& folder, Below below,
                const svn_opt_revision_t& revision) {
  const StatusTable walked = WalkProject(session);
  for (const auto& file : FilesBelow(walked, folder, below))
    if (walked.Of(file).NeedsGet || revision.kind == svn_opt_revision_number)
      UpdateTo(session, {file}, svn_depth_unknown, Reach::AsItIs, revision);
}

/// False when the files have to be fetched one by one.
bool UpdateProject(Session& session) {
  const std::string folder = session.CurrentProject().Folder;
  try {
    UpdateTo(session, {folder}, svn_depth_infinity, Reach::Set);
  } catch (const Failure& failure) {
    if (!IsOverBadName(failure, folder)) throw;
    ReleaseOwnLocks(session);
    return false;
  }
  SettleFoldersBelow(session, folder);
  return true;
}

/// Setting a folder's reach drops what lies beyond: a folder that holds others is not narrowed to its files.
bool HoldsFolders(Session& session, const std::string& folder) {
  const auto known = LocalEntries(session, folder);
  return std::any_of(known.begin(), known.end(),
                     [&](const auto& entry) { return entry.second.IsFolder && entry.first != folder; });
}

/// The files right in a folder, each by itself.
void GetFilesIn(Session& session, const std::string& folder, const svn_opt_revision_t& revision) {
  UpdateTo(session, {folder}, svn_depth_files, Reach::AsItIs, revision);
  const StatusTable walked = WalkProject(session);
  std::vector<std::string> missing;
  for (const auto& file : walked.Files())
    if (ParentOf(file) == folder && !walked.Of(file).IsHere) missing.push_back(file);
  if (!missing.empty()) UpdateTo(session, missing, svn_depth_unknown, Reach::AsItIs, revision);
}

void UpdateFolder(Session& session, const std::string& path, Below below,
                  const svn_opt_revision_t& revision) {
  const LocalStatus local = AskLocal(session, path);
  if (below == Below::Everything)
    UpdateTo(session, {path}, svn_depth_infinity, Reach::Set, revision);
  else if (local.Depth >= svn_depth_files)
    UpdateTo(session, {path}, svn_depth_files, Reach::AsItIs, revision);
  else if (HoldsFolders(session, path))
    GetFilesIn(session, path, revision);
  else
    UpdateTo(session, {path}, svn_depth_files, Reach::Set, revision);
}

void TellConflicts(Session& session, const std::string& folder, Outcome& outcome) {
  for (const auto& [path, status] : LocalEntries(session, folder)) {
    if ((status.Bits & scc::SCC_STATUS_MERGED) == 0) continue;
    const LocalStatus local = AskLocal(session, path);
    if (local.Victim == path || local.Modified)
      outcome.Try(path, [&, &file = path] { RequireNoConflict(session, file); });
  }
}

void GetFolder(Session& session, const std::string& path, Below below, const svn_opt_revision_t& revision,
               Outcome& outcome) {
  SettleFoldersAbove(session, {path});
  const bool wasKnown = AskLocal(session, path).IsControlled();
  {
    const auto rooms = MakeRoomBelow(session, path, below);
    try {
      UpdateFolder(session, path, below, revision);
    } catch (const Failure& failure) {
      // libsvn stumbles over what it has just dropped, and finds its way at the second try.
      const bool stumbled = failure.Has(SVN_ERR_WC_PATH_NOT_FOUND);
      if (!stumbled && !IsOverBadName(failure, path)) throw;
      ReleaseOwnLocks(session);
      (stumbled ? UpdateFolder : UpdateEach)(session, path, below, revision);
    }
  }
  const LocalStatus after = AskLocal(session, path);
  if (after.IsConflicted() || after.IsControlled()) SettleFoldersBelow(session, path);
  if (!AskLocal(session, path).IsControlled()) {
    if (wasKnown) return;  // it was deleted in the repository
    throw Failure(scc::SCC_E_FILENOTCONTROLLED, sNotControlled);
  }
  TellConflicts(session, path, outcome);
}

void GetOld(Session& session, const std::string& path, svn_revnum_t revision) {
  if (AskLocal(session, path).HasLock) throw Failure(scc::SCC_E_FILEISCHECKEDOUT, sStillOut);
  RequireSameName(session, RequireControlled(session, path.c_str()), revision);
  UpdateTo(session, {path}, svn_depth_unknown, Reach::AsItIs, Numbered(revision));
  RequireNoConflict(session, path);
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
  SettleFoldersAbove(session, paths);
  if (SVN_IS_VALID_REVNUM(options.GetRevision)) {
    for (const auto& path : paths) outcome.Try(path, [&] { GetOld(session, path, options.GetRevision); });
    return outcome.Result();
  }
  const StatusTable& statuses = WalkProject(session);
  if (statuses.Result < 0) return statuses.Result;

  std::vector<std::string> stale;
  std::vector<MadeRoom> rooms;
  std::map<std::string, FileState> offered;
  for (const auto& path : paths)
    outcome.Try(path, [&] {
      const FileStatus status = statuses.Of(path);
      const FileState state = StateOf(session, path, status);
      if (RuleFor(state, Command::Get).step == Step::Offer) return void(offered.emplace(path, state));
      const Step step = Require(state, Command::Get);
      if (step == Step::Settle) Settle(session, path);
      if (step == Step::MakeRoom) rooms.emplace_back(session, path);
      if (step != Step::Nothing && status.NeedsGet) stale.push_back(path);
    });
  if (stale.empty() && offered.empty() && outcome.Result() == scc::SCC_OK) TellUpToDate(session, paths);
  if (stale.size() > 1 && CoverEverything(statuses, stale) && UpdateProject(session)) {
    for (const auto& path : stale) outcome.Try(path, [&] { RequireNoConflict(session, path); });
  } else {
    for (const auto& path : stale)
      outcome.Try(path, [&] {
        Update(session, {path});
        RequireNoConflict(session, path);
      });
  }
  const auto keys = std::views::keys(offered);
  const bool givenUp = AskToGiveUp(session, {keys.begin(), keys.end()});
  for (const auto& path : keys)
    outcome.Try(path, [&] {
      if (!givenUp) Require(offered.at(path), Command::Get);
      GiveUp(session, path);
      Update(session, {path});
    });
  return outcome.Result();
}

scc::Long GetFolders(Session& session, Names names, Below below, const CommandOptions& options) {
  Outcome outcome(session);
  EnsureWorkingCopy(session);
  const auto revision = SVN_IS_VALID_REVNUM(options.GetRevision) ? Numbered(options.GetRevision) : Newest();
  for (const auto& path : outcome.PathsOf(names))
    outcome.Try(path, [&] { GetFolder(session, path, below, revision, outcome); });
  return outcome.Result();
}

}  // namespace svnscc
