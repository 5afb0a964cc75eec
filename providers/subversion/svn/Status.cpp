#include "subversion/svn/Status.h"

#include <svn_dirent_uri.h>

#include <algorithm>
#include <cstring>
#include <set>
#include <unordered_set>

#include "common/text/RepositoryPath.h"
#include "subversion/svn/LocalStatus.h"
#include "subversion/svn/NodeInfo.h"
#include "subversion/svn/NonUtf8Names.h"
#include "subversion/svn/ProviderContext.h"
#include "subversion/svn/Repository.h"
#include "subversion/svn/SvnStrings.h"

namespace kestrel::svnscc {
namespace {

/// The bits of a lock that this working copy does not hold.
scc::Long OutBits(const std::string& user, const std::string& owner) {
  return scc::SCC_STATUS_OUTEXCLUSIVE |
         (user == owner ? scc::SCC_STATUS_OUTBYUSER : scc::SCC_STATUS_OUTOTHER);
}

// A lock of the working copy may have been broken since; it is valid if the repository's lock has the same token.
scc::Long LockBits(const svn_lock_t* here, const svn_lock_t* lock, const std::string& user) {
  if (lock == nullptr) return 0;
  if (here != nullptr && std::strcmp(here->token, lock->token) == 0)
    return scc::SCC_STATUS_OUTBYUSER | scc::SCC_STATUS_CHECKEDOUT | scc::SCC_STATUS_OUTEXCLUSIVE;
  return OutBits(user, lock->owner);
}

bool IsHere(const svn_client_status_t& status) {
  return status.versioned && status.node_status != svn_wc_status_added &&
         status.node_status != svn_wc_status_none;
}

/// A copy that was not committed.  libsvn makes one of a file that is changed here and deleted in the repository.
bool IsCopy(const svn_client_status_t& status) {
  if (status.node_status == svn_wc_status_missing) return status.conflicted;  // libsvn reports no more
  return status.versioned && status.copied && status.node_status != svn_wc_status_deleted;
}

bool IsChange(svn_wc_status_kind kind) { return kind != svn_wc_status_none && kind != svn_wc_status_normal; }

bool IsLocalEdit(svn_wc_status_kind kind) {
  return kind == svn_wc_status_modified || kind == svn_wc_status_conflicted || kind == svn_wc_status_replaced;
}

bool IsOnlyInRepository(const svn_client_status_t& status) {
  return !IsHere(status) && status.repos_node_status == svn_wc_status_added;
}

/// Ignores the user's own lock if an interrupted check-out here may have taken it: the file can be checked out again.
void ApplyLeftOverLock(ProviderContext& context, const svn_client_status_t& status, FileStatus& file) {
  if (!context.Journal().Has(status.local_abspath)) return;
  constexpr scc::Long kElsewhere = scc::SCC_STATUS_OUTBYUSER | scc::SCC_STATUS_OUTEXCLUSIVE;
  file.LeftOver = (file.Bits & (kElsewhere | scc::SCC_STATUS_CHECKEDOUT)) == kElsewhere;
  if (file.LeftOver)
    file.Bits &= ~kElsewhere;
  else
    context.Journal().Remove({status.local_abspath});
}

/// Fills in the local fields, which a walk without the working copy does not set.
void AddLocalState(ProviderContext& context, svn_client_status_t& status, apr_pool_t* pool) {
  svn_wc_status3_t* local = nullptr;
  svn_error_t* error =
      svn_wc_status3(&local, context.ClientContext()->wc_ctx, status.local_abspath, pool, pool);
  if (error != SVN_NO_ERROR) {
    const Failure failure = ToFailure(error);
    svn_error_clear(error);
    if (!failure.MeansNoWorkingCopy()) throw failure;
    return;  // below a folder that is not versioned
  }
  if (local->versioned) status.kind = local->kind;
  status.versioned = local->versioned;
  status.node_status = local->node_status;
  status.text_status = local->text_status;
  status.prop_status = local->prop_status;
  status.conflicted = local->conflicted;
  status.copied = local->copied;
  status.lock = local->lock;
  status.file_external = local->file_external;
}

/// A file or folder below which libsvn reports nothing.
struct Root {
  std::string path;
  bool inConflict;    // deleted or replaced in the repository, and changed here
  bool mayHoldFiles;  // the repository has a folder of that name
};

enum class Source {
  Repository,   // asks it, and stores its answer
  Memory,       // a stored answer, with the local states of now
  WorkingCopy,  // alone
};

struct Walk {
  ProviderContext& context;
  const std::string& user;
  Source source;
  bool byName;  // libsvn could not read the folders: reads local states file by file
  RepositoryAnswer& answer;
  StatusTable& table;
  std::unordered_set<const RemoteState*> applied;  // of the answer
  std::vector<std::string>
      shadowed;  // in the repository, and a local file of that name that is not controlled
  std::vector<Root> roots;
  std::vector<std::pair<std::string, FileStatus>> copies;
  std::exception_ptr exception;
};

void RecordRoot(Walk& walk, const svn_client_status_t& status) {
  if (status.conflicted && IsCopy(status))
    walk.roots.push_back({status.local_abspath, true, true});
  else if (status.repos_node_status == svn_wc_status_deleted && status.kind == svn_node_dir)
    walk.roots.push_back({status.local_abspath, false, false});
  else if (status.repos_node_status == svn_wc_status_replaced && status.kind == svn_node_dir)
    walk.roots.push_back({status.local_abspath, false, true});
}

/// Stores the repository's part of a status, or replaces it by what was stored.
void AddRemoteState(Walk& walk, svn_client_status_t& status) {
  auto& states = walk.answer.States;
  if (walk.source == Source::WorkingCopy) {
    status.repos_lock = status.lock;
  } else if (walk.source == Source::Repository) {
    RemoteState state(status);
    if (!state.IsPlain()) states.insert_or_assign(status.local_abspath, std::move(state));
  } else if (const auto stored = states.find(status.local_abspath); stored != states.end()) {
    stored->second.ApplyTo(status);
    walk.applied.insert(&stored->second);
  }
}

void RecordStatus(Walk& walk, svn_client_status_t seen, apr_pool_t* pool) {
  if (walk.byName) AddLocalState(walk.context, seen, pool);
  AddRemoteState(walk, seen);
  RecordRoot(walk, seen);
  FileStatus file = ToFileStatus(seen, walk.user);
  if (walk.source != Source::WorkingCopy) ApplyLeftOverLock(walk.context, seen, file);
  if (IsCopy(seen))
    walk.copies.emplace_back(seen.local_abspath, file);
  else if (file.Bits != 0)
    walk.table.Put(seen.local_abspath, file);
  if (IsOnlyInRepository(seen) && seen.node_status != svn_wc_status_none)
    walk.shadowed.emplace_back(seen.local_abspath);
}

svn_error_t* OnStatus(void* baton, const char*, const svn_client_status_t* status,
                      apr_pool_t* pool) noexcept {
  auto& walk = *static_cast<Walk*>(baton);
  return RunInCallback(walk.exception, [&] { RecordStatus(walk, *status, pool); });
}

svn_client_status_t UnknownStatus(const char* path) {
  svn_client_status_t status{};
  status.local_abspath = path;
  status.node_status = status.text_status = status.prop_status = svn_wc_status_none;
  status.repos_node_status = status.repos_text_status = status.repos_prop_status = svn_wc_status_none;
  return status;
}

/// Adds the files of a stored answer that the working copy does not report.
void RecordUnreported(Walk& walk) {
  const Pool pool;
  for (const auto& [path, state] : walk.answer.States) {
    if (walk.applied.contains(&state)) continue;
    svn_client_status_t status = UnknownStatus(path.c_str());
    AddLocalState(walk.context, status, pool);
    RecordStatus(walk, status, pool);
  }
}

/// Fetches the locks of files that libsvn reports without them, all at once.
void AddLocksOfShadowed(Walk& walk) {
  if (walk.shadowed.empty()) return;
  const Project& project = walk.context.CurrentProject();
  auto& owners = walk.answer.LockOwners;
  if (!owners) owners = LockOwnersBelow(walk.context.Svn(), project.Url);
  for (const auto& path : walk.shadowed) {
    const auto owner = owners->find(svn_dirent_skip_ancestor(project.Folder.c_str(), path.c_str()));
    if (owner == owners->end()) continue;
    FileStatus status = walk.table.Of(path);
    status.Bits |= OutBits(walk.user, owner->second);
    status.LockOwner = owner->second;
    walk.table.Put(path, status);
  }
}

/// The files of the repository below a folder, as local paths.
std::set<std::string> FetchFilesBelow(Walk& walk, const std::string& folder) {
  const Project& project = walk.context.CurrentProject();
  const char* inside = svn_dirent_skip_ancestor(project.Folder.c_str(), folder.c_str());
  const auto [known, isNew] = walk.answer.FilesBelow.try_emplace(inside);
  if (isNew) known->second = FilesBelow(walk.context.Svn(), UrlOf(project.Url, inside));
  std::set<std::string> paths;
  for (const auto& file : known->second) paths.insert(file.empty() ? folder : PathBelow(folder, file));
  return paths;
}

bool IsBelow(const std::string& path, const std::string& folder) {
  return svn_dirent_is_ancestor(folder.c_str(), path.c_str());
}

/// The status of a copy that belongs to a conflict.
FileStatus InConflict(FileStatus status, bool isInRepository) {
  status.Bits &= ~scc::SCC_STATUS_DELETED;
  status.Bits |= scc::SCC_STATUS_CONTROLLED | scc::SCC_STATUS_MERGED;
  if (!isInRepository) status.Bits |= scc::SCC_STATUS_DELETED;
  status.IsHere = true;
  return status;
}

void FetchStatusBelow(Walk& walk, ProviderContext& context, const Root& root);

/// Applies the status of deleted and replaced folders to the files in them.
void Inherit(Walk& walk, ProviderContext& context) {
  std::sort(walk.roots.begin(), walk.roots.end(),
            [](const Root& a, const Root& b) { return a.path < b.path; });
  for (const Root& root : walk.roots) {
    std::set<std::string> inRepository;
    if (root.mayHoldFiles && walk.source != Source::WorkingCopy)
      inRepository = FetchFilesBelow(walk, root.path);
    for (const auto& [path, status] : walk.copies)
      if (root.inConflict && IsBelow(path, root.path))
        walk.table.Put(path, InConflict(status, inRepository.contains(path)));
    if (!root.inConflict) FetchStatusBelow(walk, context, root);
    for (const auto& path : inRepository) {
      if (walk.table.Of(path).Bits != 0) continue;
      FileStatus unseen;
      unseen.Bits = scc::SCC_STATUS_CONTROLLED | scc::SCC_STATUS_OUTOFDATE;
      unseen.NeedsGet = true;
      walk.table.Put(path, unseen);
      walk.shadowed.push_back(path);
    }
  }
}

svn_error_t* OnNode(void* baton, const char* path, const svn_client_info2_t*, apr_pool_t* pool) noexcept {
  const svn_client_status_t status = UnknownStatus(path);
  return OnStatus(baton, path, &status, pool);
}

/// A walk over the working copy's database, which reads no folder on disk.
svn_error_t* WalkKnown(Walk& walk, const std::string& path, svn_depth_t depth) {
  const Pool pool;
  const svn_opt_revision_t here{};
  return svn_client_info4(path.c_str(), &here, &here, depth, /*fetch_excluded*/ FALSE,
                          /*fetch_actual_only*/ TRUE, /*include_externals*/ FALSE, nullptr, OnNode, &walk,
                          walk.context.ClientContext(), pool);
}

enum class Read { Folders, NamedFiles };

void WalkInto(StatusTable& table, ProviderContext& context, const std::string& path, svn_depth_t depth,
              Source source, RepositoryAnswer& answer, Read read) {
  const Pool pool;
  const bool online = source == Source::Repository;
  const bool byName = read == Read::NamedFiles;
  Walk walk{context, context.Svn().User(), source, byName, answer, table, {}, {}, {}, {}, nullptr};
  const svn_opt_revision_t head = Newest();
  svn_error_t* error =
      byName && !online
          ? WalkKnown(walk, path, depth)
          : svn_client_status6(nullptr, context.ClientContext(), path.c_str(), &head, depth, /*get_all*/ TRUE,
                               /*check_out_of_date*/ online, /*check_working_copy*/ !byName,
                               /*no_ignore*/ TRUE,
                               /*ignore_externals*/ TRUE, /*depth_as_sticky*/ TRUE, nullptr, OnStatus, &walk,
                               pool);
  context.Svn().Run(error, walk.exception);
  if (source == Source::Memory) RecordUnreported(walk);
  Inherit(walk, context);
  AddLocksOfShadowed(walk);
}

void WalkInto(StatusTable& table, ProviderContext& context, const std::string& path, svn_depth_t depth,
              Source source, RepositoryAnswer& answer) {
  try {
    WalkInto(table, context, path, depth, source, answer, Read::Folders);
  } catch (const Failure& failure) {
    // libsvn fails on a folder that contains a name which is not UTF-8, also if one file in it is asked for.
    const Pool pool;
    const std::string folder = depth == svn_depth_empty ? svn_dirent_dirname(path.c_str(), pool) : path;
    const auto names = failure.Has(APR_EINVAL) ? NamesNotUtf8(folder) : std::vector<std::string>();
    if (names.empty()) throw;
    context.ReportNonUtf8Names(names);
    table = {};
    WalkInto(table, context, path, depth, source, answer, Read::NamedFiles);
  }
}

void WalkInto(StatusTable& table, ProviderContext& context, const std::string& path, svn_depth_t depth,
              Source source) {
  RepositoryAnswer answer;
  WalkInto(table, context, path, depth, source, answer);
}

bool IsFolderKnown(ProviderContext& context, const std::string& path) {
  if (path == context.CurrentProject().Folder) return true;
  const Pool pool;
  const LocalState state = ReadLocalStatus(context, svn_dirent_dirname(path.c_str(), pool)).State;
  return state != LocalState::Absent && state != LocalState::Unversioned;
}

/// Marks the files below a deleted folder as deleted.  Below a replaced folder libsvn reports every file as deleted, so
/// each status is fetched alone.
void FetchStatusBelow(Walk& walk, ProviderContext& context, const Root& root) {
  for (auto& [path, status] : walk.table.Entries()) {
    if (path == root.path || !status.IsHere || !IsBelow(path, root.path)) continue;
    if (root.mayHoldFiles) {
      StatusTable alone;
      WalkInto(alone, context, path, svn_depth_empty, Source::Repository);
      status = alone.Of(path);
    } else {
      status.Bits &= ~scc::SCC_STATUS_OUTOFDATE;
      status.Bits |= scc::SCC_STATUS_DELETED;
      status.NeedsGet = true;
    }
  }
}

/// The statuses from the working copy alone; reports why the repository could not be contacted.
StatusTable LocalWalk(ProviderContext& context, const Failure& reason) {
  context.Out().Error(Format(sStatusFailed.Text, {reason.what()}));
  const bool unreachable = reason.Result() == scc::SCC_E_CONNECTIONFAILURE;
  StatusTable table;
  WalkInto(table, context, context.CurrentProject().Folder, svn_depth_infinity, Source::WorkingCopy);
  table.Result = unreachable ? static_cast<scc::Long>(scc::SCC_E_ACCESSFAILURE) : reason.Result();
  return table;
}

/// The status of a file below a folder that is not in the working copy.
FileStatus FetchStatusOfUnknown(ProviderContext& context, const std::string& path) {
  const Project& project = context.CurrentProject();
  const char* inside = svn_dirent_skip_ancestor(project.Folder.c_str(), path.c_str());
  FileStatus status;
  try {
    const NodeInfo node = FetchNodeInfo(context.Svn(), UrlOf(project.Url, inside), Newest());
    status.Bits = scc::SCC_STATUS_CONTROLLED | scc::SCC_STATUS_OUTOFDATE;
    status.IsFolder = node.IsFolder;
    status.NeedsGet = true;
    status.LockOwner = node.Lock.Owner;
    if (!node.Lock.Owner.empty()) status.Bits |= OutBits(context.Svn().User(), node.Lock.Owner);
  } catch (const Failure& failure) {
    if (!failure.Has(SVN_ERR_RA_ILLEGAL_URL) && !failure.Has(SVN_ERR_FS_NOT_FOUND)) throw;
  }
  return status;
}

/// The status of one file from the working copy alone; cheaper than a walk.
FileStatus LocalFileStatus(ProviderContext& context, const std::string& path) {
  const Pool pool;
  svn_client_status_t status = UnknownStatus(path.c_str());
  AddLocalState(context, status, pool);
  status.repos_lock = status.lock;
  if (!IsCopy(status)) return ToFileStatus(status, context.Svn().User());
  StatusTable table;
  WalkInto(table, context, path, svn_depth_empty, Source::WorkingCopy);
  return table.Of(path);
}

/// Asks the repository, unless its last answer is recent.
void WalkFromAnswer(StatusTable& table, ProviderContext& context) {
  const std::string& folder = context.CurrentProject().Folder;
  if (RepositoryAnswer* known = context.Recent().Find()) {
    if (known->Unreachable) throw Failure(*known->Unreachable);
    return WalkInto(table, context, folder, svn_depth_infinity, Source::Memory, *known);
  }
  RepositoryAnswer answer;
  const auto stamp = context.Recent().StampNow();
  try {
    WalkInto(table, context, folder, svn_depth_infinity, Source::Repository, answer);
  } catch (const Failure& failure) {
    if (failure.Result() != scc::SCC_E_CONNECTIONFAILURE) throw;
    answer = {};
    answer.Unreachable = failure;
    context.Recent().Store(std::move(answer), stamp);
    throw;
  }
  context.Recent().Store(std::move(answer), stamp);
}

}  // namespace

void StatusTable::Put(const std::string& path, const FileStatus& status) { entries_[path] = status; }

FileStatus StatusTable::Of(const std::string& path) const {
  const auto found = entries_.find(path);
  return found != entries_.end() ? found->second : FileStatus{};
}

std::vector<std::string> StatusTable::Files() const {
  std::vector<std::string> files;
  for (const auto& [path, status] : entries_)
    if (!status.IsFolder) files.push_back(path);
  std::sort(files.begin(), files.end());
  return files;
}

FileStatus ToFileStatus(const svn_client_status_t& status, const std::string& user) {
  const bool onlyInRepository = IsOnlyInRepository(status);
  if (status.file_external || status.node_status == svn_wc_status_external) return {};
  if (!IsHere(status) && !onlyInRepository && !IsCopy(status)) return {};

  const bool deleted = status.repos_node_status == svn_wc_status_deleted;
  const bool newer = onlyInRepository ||
                     (!deleted && (IsChange(status.repos_node_status) || IsChange(status.repos_text_status) ||
                                   IsChange(status.repos_prop_status)));
  FileStatus result;
  result.IsHere = IsHere(status);
  if (status.repos_lock != nullptr && status.repos_lock->owner != nullptr)
    result.LockOwner = status.repos_lock->owner;
  result.Bits = scc::SCC_STATUS_CONTROLLED | LockBits(status.lock, status.repos_lock, user);
  if (deleted) result.Bits |= scc::SCC_STATUS_DELETED;
  if (newer) result.Bits |= scc::SCC_STATUS_OUTOFDATE;
  if (status.conflicted) result.Bits |= scc::SCC_STATUS_MERGED;
  if (IsLocalEdit(status.node_status) || IsLocalEdit(status.text_status) || IsLocalEdit(status.prop_status))
    result.Bits |= scc::SCC_STATUS_MODIFIED;
  result.IsFolder = (onlyInRepository ? status.ood_kind : status.kind) == svn_node_dir;
  result.NeedsGet = newer || deleted || status.node_status == svn_wc_status_missing;
  return result;
}

const StatusTable& WalkProject(ProviderContext& context, Answer which) {
  StatusTable table;
  try {
    if (which == Answer::New) context.Recent().Forget();
    WalkFromAnswer(table, context);
  } catch (const Failure& failure) {
    table = failure.MeansNoWorkingCopy() ? StatusTable{} : LocalWalk(context, failure);
  }
  if (table.Result >= 0) context.Events().Update(table);
  return context.LastStatuses() = std::move(table);
}

FileStatus FetchStatus(ProviderContext& context, const std::string& path) {
  const LocalStatus local = ReadLocalStatus(context, path);
  // libsvn reports nothing about a file below a folder that it does not know, or that is in conflict.
  if (!local.IsConflicted()) {
    if (!IsFolderKnown(context, path)) return FetchStatusOfUnknown(context, path);
    StatusTable table;
    WalkInto(table, context, path, svn_depth_empty, Source::Repository);
    return table.Of(path);
  }
  const StatusTable& walked = WalkProject(context);
  if (walked.Result < 0) throw Failure(walked.Result, sNotAsked);
  return walked.Of(path);
}

std::map<std::string, FileStatus> LocalEntries(ProviderContext& context, const std::string& folder) {
  StatusTable table;
  WalkInto(table, context, folder, svn_depth_infinity, Source::WorkingCopy);
  return {table.Entries().begin(), table.Entries().end()};
}

void RecordCommandResult(ProviderContext& context, std::span<const char* const> names) {
  // For more files, a client should query all statuses instead.
  constexpr std::size_t kMost = 1000;
  if (names.size() > kMost) return;
  for (const char* name : names) {
    const std::string path = context.InsidePath(name);
    if (context.Events().Covers(path)) context.Events().Update(path, LocalFileStatus(context, path).Bits);
  }
}

}  // namespace kestrel::svnscc
