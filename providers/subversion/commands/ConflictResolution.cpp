// Resolving conflicts and deletions.
#include <svn_dirent_uri.h>

#include <optional>
#include <set>

#include "subversion/commands/CommandStrings.h"
#include "subversion/commands/CommandTable.h"
#include "subversion/commands/Commands.h"
#include "subversion/commands/TemporaryRename.h"
#include "subversion/svn/Question.h"

namespace kestrel::svnscc {
namespace {

void RemoveFromDisk(const std::string& path) {
  const Pool pool;
  Check(svn_io_remove_file2(path.c_str(), /*ignore_enoent*/ TRUE, pool));
}

/// The file or the outermost folder above it that was deleted in the repository; empty if there is none.
std::string OutermostGone(ProviderContext& context, const std::string& path) {
  std::string gone;
  for (std::string here = path; here != context.CurrentProject().Folder; here = ParentOf(here)) {
    if (!ReadLocalStatus(context, here).IsControlled()) continue;
    if ((FetchStatus(context, here).Bits & scc::SCC_STATUS_DELETED) == 0) break;
    gone = here;
  }
  return gone;
}

struct CopiedFiles {
  std::set<std::string> untouched;
  std::exception_ptr exception;
};

svn_error_t* OnCopiedStatus(void* baton, const char* path, const svn_client_status_t* status,
                            apr_pool_t*) noexcept {
  auto& copied = *static_cast<CopiedFiles*>(baton);
  return RunInCallback(copied.exception, [&] {
    // A file whose own conflict came first has the status added.
    if (status->kind == svn_node_file && status->node_status == svn_wc_status_normal && !status->conflicted)
      copied.untouched.insert(path);
  });
}

/// The files below a folder without local edits.
std::set<std::string> UntouchedBelow(ProviderContext& context, const std::string& folder) {
  const Pool pool;
  const svn_opt_revision_t unused{};
  CopiedFiles copied;
  svn_error_t* error = svn_client_status6(
      nullptr, context.ClientContext(), folder.c_str(), &unused, svn_depth_infinity, /*get_all*/ TRUE,
      /*check_out_of_date*/ FALSE, /*check_working_copy*/ TRUE, /*no_ignore*/ FALSE,
      /*ignore_externals*/ TRUE, /*depth_as_sticky*/ FALSE, nullptr, OnCopiedStatus, &copied, pool);
  context.Svn().Run(error, copied.exception);
  return copied.untouched;
}

/// Reverts a file or folder in the working copy and leaves everything on disk.
void RevertMetadata(ProviderContext& context, const std::string& path) {
  const MutedNotifications muted(context);
  if (!IsOnDisk(path)) return Revert(context, {path}, svn_depth_infinity);
  const TemporaryRename aside(path);
  Revert(context, {path}, svn_depth_infinity);
}

/// Resolves a folder's conflict.  Edited files stay: in place where the repository has no such file, else in a copy beside
/// the repository's version.  Files without edits become what the repository has, which may be nothing.
void ResolveFolder(ProviderContext& context, const std::string& folder) {
  const std::set<std::string> untouched = UntouchedBelow(context, folder);
  RevertMetadata(context, folder);
  for (const auto& [path, status] : LocalEntries(context, folder)) {
    if (status.IsFolder || (status.Bits & scc::SCC_STATUS_MODIFIED) == 0) continue;
    if (!untouched.contains(path)) SaveCopy(context, path);
    const MutedNotifications muted(context);
    Revert(context, {path});
  }
  for (const auto& path : untouched)
    if (ReadLocalStatus(context, path).State == LocalState::Unversioned) RemoveFromDisk(path);
}

/// Reverts a file and keeps its edits in a copy.
void RevertWithCopy(ProviderContext& context, const std::string& path) {
  const auto local = ReadLocalStatus(context, path);
  if (local.Differs && IsOnDisk(path)) SaveCopy(context, path);
  Revert(context, {path});
}

/// Removes an unversioned file; keeps edits in a copy.
void RemoveFile(ProviderContext& context, const std::string& path, bool edited) {
  if (!IsOnDisk(path)) return;
  if (edited) SaveCopy(context, path);
  RemoveFromDisk(path);
}

}  // namespace

void Revert(ProviderContext& context, const std::vector<std::string>& paths, svn_depth_t depth,
            AddedFiles added) {
  const Pool pool;
  context.Svn().Run(svn_client_revert4(ToArray(paths, pool), depth, nullptr, FALSE, /*metadata_only*/ FALSE,
                                       /*added_keep_local*/ added == AddedFiles::Keep,
                                       context.ClientContext(), pool));
}

void Unschedule(ProviderContext& context, const std::vector<std::string>& paths) {
  if (paths.empty()) return;
  const MutedNotifications muted(context);
  const Pool pool;
  svn_error_clear(svn_client_revert4(ToArray(paths, pool), svn_depth_empty, nullptr, FALSE,
                                     /*metadata_only*/ TRUE, /*added_keep_local*/ TRUE,
                                     context.ClientContext(), pool));
}

void MarkResolved(ProviderContext& context, const std::string& path) {
  const Pool pool;
  context.Svn().Run(svn_client_resolve(path.c_str(), svn_depth_empty, svn_wc_conflict_choose_merged,
                                       context.ClientContext(), pool));
}

// libsvn deletes the files that it unversions, and reports edited and missing ones as conflicts.  So the files are moved
// aside, and it finds unchanged ones.
void Unversion(ProviderContext& context, const std::string& path) {
  const MutedNotifications muted(context);
  const LocalStatus local = ReadLocalStatus(context, path);
  if (local.Kind == Conflict::Lost) return RevertMetadata(context, local.Victim);
  const std::string gone = OutermostGone(context, path);
  if (gone.empty()) return;
  std::optional<TemporaryRename> aside;
  if (IsOnDisk(gone)) aside.emplace(gone);
  Revert(context, {gone}, svn_depth_infinity);
  Update(context, {gone});
}

void ResolveFoldersAbove(ProviderContext& context, const std::vector<std::string>& paths) {
  std::set<std::string> folders;
  for (const auto& path : paths)
    if (path != context.CurrentProject().Folder) folders.insert(ParentOf(path));
  for (const auto& folder : folders)
    for (LocalStatus local = ReadLocalStatus(context, folder); local.IsConflicted();
         local = ReadLocalStatus(context, folder))
      ResolveFolder(context, local.Victim);
}

void ResolveFoldersBelow(ProviderContext& context, const std::string& folder) {
  for (const auto& [path, status] : LocalEntries(context, folder)) {
    if (!status.IsFolder || (status.Bits & scc::SCC_STATUS_MERGED) == 0) continue;
    const LocalStatus local = ReadLocalStatus(context, path);
    if (local.IsConflicted() && local.Victim == path) ResolveFolder(context, path);
  }
}

void AcceptRepository(ProviderContext& context, const std::string& path) {
  const LocalStatus local = ReadLocalStatus(context, path);
  const bool edited = local.Modified;
  if (local.IsConflicted() && local.Victim != path) ResolveFoldersAbove(context, {path});
  const LocalStatus now = ReadLocalStatus(context, path);
  if (now.Kind == Conflict::Lost) Unversion(context, path);
  if (now.Kind == Conflict::Lost || now.State == LocalState::Unversioned)
    return RemoveFile(context, path, edited);
  RevertWithCopy(context, path);
  // Without a lock it was an edit of a file that was deleted in the repository.
  if (!local.IsConflicted() && !local.HasLock) Update(context, {path});
}

bool AskToAcceptRepository(ProviderContext& context, const std::vector<std::string>& paths) {
  if (paths.empty()) return false;
  std::string labels;
  for (const auto& path : paths) labels += (labels.empty() ? "" : "\n") + context.Label(path);
  return AskUser(nullptr, {sGiveUpTitle.str(), Format(sGiveUp.Text, {labels})}).value_or(false);
}

}  // namespace kestrel::svnscc
