// Ways out of conflicts and deletions.
#include <svn_dirent_uri.h>

#include <optional>
#include <set>

#include "CommandTable.h"
#include "Commands.h"
#include "Question.h"
#include "SetAside.h"
#include "SubversionSccStrings.h"

namespace svnscc {
namespace {

void Revert(Session& session, const std::string& path, svn_depth_t depth) {
  const Pool pool;
  session.Svn().Run(svn_client_revert4(ToArray({path}, pool), depth, nullptr, FALSE, /*metadata_only*/ FALSE,
                                       /*added_keep_local*/ TRUE, session.Context(), pool));
}

void RemoveFromDisk(const std::string& path) {
  const Pool pool;
  Check(svn_io_remove_file2(path.c_str(), /*ignore_enoent*/ TRUE, pool));
}

/// The file or the outermost folder above it that was deleted in the repository; empty when there is none.
std::string OutermostGone(Session& session, const std::string& path) {
  std::string gone;
  for (std::string here = path; here != session.CurrentProject().Folder; here = ParentOf(here)) {
    if (!AskLocal(session, here).IsControlled()) continue;
    if ((AskStatus(session, here).Bits & scc::SCC_STATUS_DELETED) == 0) break;
    gone = here;
  }
  return gone;
}

struct CopiedFiles {
  std::set<std::string> untouched;
  std::exception_ptr kept;
};

svn_error_t* TakeCopied(void* baton, const char* path, const svn_client_status_t* status,
                        apr_pool_t*) noexcept {
  auto& copied = *static_cast<CopiedFiles*>(baton);
  return Contain(copied.kept, [&] {
    // One that was added is a file whose own conflict came first.
    if (status->kind == svn_node_file && status->node_status == svn_wc_status_normal && !status->conflicted)
      copied.untouched.insert(path);
  });
}

/// The files below a folder in which nobody typed.
std::set<std::string> UntouchedBelow(Session& session, const std::string& folder) {
  const Pool pool;
  const svn_opt_revision_t unused{};
  CopiedFiles copied;
  svn_error_t* error = svn_client_status6(
      nullptr, session.Context(), folder.c_str(), &unused, svn_depth_infinity, /*get_all*/ TRUE,
      /*check_out_of_date*/ FALSE, /*check_working_copy*/ TRUE, /*no_ignore*/ FALSE,
      /*ignore_externals*/ TRUE, /*depth_as_sticky*/ FALSE, nullptr, TakeCopied, &copied, pool);
  Check(error, copied.kept);
  return copied.untouched;
}

/// Makes the working copy know what the repository has of a file or folder, and leaves everything on disk.
void RevertBehind(Session& session, const std::string& path) {
  const Silence silence(session);
  if (!IsOnDisk(path)) return Revert(session, path, svn_depth_infinity);
  const SetAside aside(path);
  Revert(session, path, svn_depth_infinity);
}

/// Ends a folder's conflict.  What was typed stays: as it is where the repository has no such file, in a copy beside the
/// repository's otherwise.  What nobody touched becomes what the repository has, which may be nothing.
void SettleFolder(Session& session, const std::string& folder) {
  const std::set<std::string> untouched = UntouchedBelow(session, folder);
  RevertBehind(session, folder);
  for (const auto& [path, status] : LocalEntries(session, folder)) {
    if (status.IsFolder || (status.Bits & scc::SCC_STATUS_MODIFIED) == 0) continue;
    if (!untouched.contains(path)) KeepCopy(session, path);
    const Silence silence(session);
    Revert(session, path, svn_depth_empty);
  }
  for (const auto& path : untouched)
    if (AskLocal(session, path).State == LocalState::Unversioned) RemoveFromDisk(path);
}

/// Keeps what is here beside the file, and makes the file what the working copy knows of it.
void RevertWithCopy(Session& session, const std::string& path) {
  const auto local = AskLocal(session, path);
  if (local.Differs && IsOnDisk(path)) KeepCopy(session, path);
  Revert(session, path, svn_depth_empty);
}

/// The file goes, the working copy having forgotten it; what was typed stays beside it.
void TakeAway(Session& session, const std::string& path, bool edited) {
  if (!IsOnDisk(path)) return;
  if (edited) KeepCopy(session, path);
  RemoveFromDisk(path);
}

}  // namespace

void Settle(Session& session, const std::string& path) {
  const Pool pool;
  session.Svn().Run(svn_client_resolve(path.c_str(), svn_depth_empty, svn_wc_conflict_choose_merged,
                                       session.Context(), pool));
}

// libsvn takes away what it forgets, and calls an edited or missing file a conflict: therefore it sees unchanged files,
// and not those that are here.
void Forget(Session& session, const std::string& path) {
  const Silence silence(session);
  const LocalStatus local = AskLocal(session, path);
  if (local.Kind == Conflict::Lost) return RevertBehind(session, local.Victim);
  const std::string gone = OutermostGone(session, path);
  if (gone.empty()) return;
  std::optional<SetAside> aside;
  if (IsOnDisk(gone)) aside.emplace(gone);
  Revert(session, gone, svn_depth_infinity);
  Update(session, {gone});
}

void SettleFoldersAbove(Session& session, const std::vector<std::string>& paths) {
  std::set<std::string> folders;
  for (const auto& path : paths)
    if (path != session.CurrentProject().Folder) folders.insert(ParentOf(path));
  for (const auto& folder : folders)
    for (LocalStatus local = AskLocal(session, folder); local.IsConflicted();
         local = AskLocal(session, folder))
      SettleFolder(session, local.Victim);
}

void SettleFoldersBelow(Session& session, const std::string& folder) {
  for (const auto& [path, status] : LocalEntries(session, folder)) {
    if (!status.IsFolder || (status.Bits & scc::SCC_STATUS_MERGED) == 0) continue;
    const LocalStatus local = AskLocal(session, path);
    if (local.IsConflicted() && local.Victim == path) SettleFolder(session, path);
  }
}

void GiveUp(Session& session, const std::string& path) {
  const LocalStatus local = AskLocal(session, path);
  const bool edited = local.Modified;
  if (local.IsConflicted() && local.Victim != path) SettleFoldersAbove(session, {path});
  const LocalStatus now = AskLocal(session, path);
  if (now.Kind == Conflict::Lost) Forget(session, path);
  if (now.Kind == Conflict::Lost || now.State == LocalState::Unversioned)
    return TakeAway(session, path, edited);
  RevertWithCopy(session, path);
  // Without a lock it was an edit of a file that the repository has no more.
  if (!local.IsConflicted() && !local.HasLock) Update(session, {path});
}

bool AskToGiveUp(Session& session, const std::vector<std::string>& paths) {
  if (paths.empty()) return false;
  std::string labels;
  for (const auto& path : paths) labels += (labels.empty() ? "" : "\n") + session.Label(path);
  return AskUser(nullptr, {sGiveUpTitle.str(), Format(sGiveUp.Text, {labels})}).value_or(false);
}

}  // namespace svnscc
