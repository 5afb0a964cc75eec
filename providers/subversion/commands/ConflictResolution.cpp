// Ways out of conflicts and deletions.
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

void Revert(ProviderContext& context, const std::string& path, svn_depth_t depth) {
  const Pool pool;
  context.Svn().Run(svn_client_revert4(ToArray({path}, pool), depth, nullptr, FALSE, /*metadata_only*/ FALSE,
                                       /*added_keep_local*/ TRUE, context.ClientContext(), pool));
}

void RemoveFromDisk(const std::string& path) {
  const Pool pool;
  Check(svn_io_remove_file2(path.c_str(), /*ignore_enoent*/ TRUE, pool));
}

/// The file or the outermost folder above it that was deleted in the repository; empty when there is none.
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
    // One that was added is a file whose own conflict came first.
    if (status->kind == svn_node_file && status->node_status == svn_wc_status_normal && !status->conflicted)
      copied.untouched.insert(path);
  });
}

/// The files below a folder in which nobody typed.
std::set<std::string> UntouchedBelow(ProviderContext& context, const std::string& folder) {
  const Pool pool;
  const svn_opt_revision_t unused{};
  CopiedFiles copied;
  svn_error_t* error = svn_client_status6(
      nullptr, context.ClientContext(), folder.c_str(), &unused, svn_depth_infinity, /*get_all*/ TRUE,
      /*check_out_of_date*/ FALSE, /*check_working_copy*/ TRUE, /*no_ignore*/ FALSE,
      /*ignore_externals*/ TRUE, /*depth_as_sticky*/ FALSE, nullptr, OnCopiedStatus, &copied, pool);
  Check(error, copied.exception);
  return copied.untouched;
}

/// Makes the working copy know what the repository has of a file or folder, and leaves everything on disk.
void RevertBehind(ProviderContext& context, const std::string& path) {
  const MutedNotifications silence(context);
  if (!IsOnDisk(path)) return Revert(context, path, svn_depth_infinity);
  const TemporaryRename aside(path);
  Revert(context, path, svn_depth_infinity);
}

/// Ends a folder's conflict.  What was typed stays: as it is where the repository has no such file, in a copy beside the
/// repository's otherwise.  What nobody touched becomes what the repository has, which may be nothing.
void ResolveFolder(ProviderContext& context, const std::string& folder) {
  const std::set<std::string> untouched = UntouchedBelow(context, folder);
  RevertBehind(context, folder);
  for (const auto& [path, status] : LocalEntries(context, folder)) {
    if (status.IsFolder || (status.Bits & scc::SCC_STATUS_MODIFIED) == 0) continue;
    if (!untouched.contains(path)) SaveCopy(context, path);
    const MutedNotifications silence(context);
    Revert(context, path, svn_depth_empty);
  }
  for (const auto& path : untouched)
    if (ReadLocalStatus(context, path).State == LocalState::Unversioned) RemoveFromDisk(path);
}

/// Keeps what is here beside the file, and makes the file what the working copy knows of it.
void RevertWithCopy(ProviderContext& context, const std::string& path) {
  const auto local = ReadLocalStatus(context, path);
  if (local.Differs && IsOnDisk(path)) SaveCopy(context, path);
  Revert(context, path, svn_depth_empty);
}

/// The file goes, the working copy having forgotten it; what was typed stays beside it.
void RemoveFile(ProviderContext& context, const std::string& path, bool edited) {
  if (!IsOnDisk(path)) return;
  if (edited) SaveCopy(context, path);
  RemoveFromDisk(path);
}

}  // namespace

void MarkResolved(ProviderContext& context, const std::string& path) {
  const Pool pool;
  context.Svn().Run(svn_client_resolve(path.c_str(), svn_depth_empty, svn_wc_conflict_choose_merged,
                                       context.ClientContext(), pool));
}

// libsvn takes away what it forgets, and calls an edited or missing file a conflict: therefore it sees unchanged files,
// and not those that are here.
void Forget(ProviderContext& context, const std::string& path) {
  const MutedNotifications silence(context);
  const LocalStatus local = ReadLocalStatus(context, path);
  if (local.Kind == Conflict::Lost) return RevertBehind(context, local.Victim);
  const std::string gone = OutermostGone(context, path);
  if (gone.empty()) return;
  std::optional<TemporaryRename> aside;
  if (IsOnDisk(gone)) aside.emplace(gone);
  Revert(context, gone, svn_depth_infinity);
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
  if (now.Kind == Conflict::Lost) Forget(context, path);
  if (now.Kind == Conflict::Lost || now.State == LocalState::Unversioned)
    return RemoveFile(context, path, edited);
  RevertWithCopy(context, path);
  // Without a lock it was an edit of a file that the repository has no more.
  if (!local.IsConflicted() && !local.HasLock) Update(context, {path});
}

bool AskToAcceptRepository(ProviderContext& context, const std::vector<std::string>& paths) {
  if (paths.empty()) return false;
  std::string labels;
  for (const auto& path : paths) labels += (labels.empty() ? "" : "\n") + context.Label(path);
  return AskUser(nullptr, {sGiveUpTitle.str(), Format(sGiveUp.Text, {labels})}).value_or(false);
}

}  // namespace kestrel::svnscc
