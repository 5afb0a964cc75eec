// Ways out of conflicts and deletions.
#include <svn_dirent_uri.h>

#include "CommandTable.h"
#include "Commands.h"
#include "SetAside.h"

namespace svnscc {
namespace {

enum class Disk { Keep, Restore };

void Revert(Session& session, const std::string& path, svn_depth_t depth, Disk disk) {
  const Pool pool;
  session.Svn().Run(svn_client_revert4(ToArray({path}, pool), depth, nullptr, FALSE,
                                       /*metadata_only*/ disk == Disk::Keep, /*added_keep_local*/ TRUE,
                                       session.Context(), pool));
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

struct EditedFiles {
  std::vector<std::string> paths;
  std::exception_ptr kept;
};

svn_error_t* TakeEdited(void* baton, const char* path, const svn_client_status_t* status,
                        apr_pool_t*) noexcept {
  auto& edited = *static_cast<EditedFiles*>(baton);
  const bool differs =
      status->text_status == svn_wc_status_modified || status->text_status == svn_wc_status_conflicted;
  return Contain(edited.kept, [&] {
    if (status->kind == svn_node_file && differs && IsOnDisk(path)) edited.paths.emplace_back(path);
  });
}

/// The edited files in a folder, or the file itself.
std::vector<std::string> EditedBelow(Session& session, const std::string& path) {
  const Pool pool;
  const svn_opt_revision_t unused{};
  EditedFiles edited;
  svn_error_t* error = svn_client_status6(
      nullptr, session.Context(), path.c_str(), &unused, svn_depth_infinity, /*get_all*/ FALSE,
      /*check_out_of_date*/ FALSE, /*check_working_copy*/ TRUE, /*no_ignore*/ FALSE,
      /*ignore_externals*/ TRUE, /*depth_as_sticky*/ FALSE, nullptr, TakeEdited, &edited, pool);
  Check(error, edited.kept);
  return edited.paths;
}

/// Keeps what is here beside the file, and makes the file what the working copy knows of it.
void RevertWithCopy(Session& session, const std::string& path) {
  const auto local = AskLocal(session, path);
  if (local.Differs && IsOnDisk(path)) KeepCopy(session, path);
  Revert(session, path, svn_depth_empty, Disk::Restore);
}

/// The file goes, the working copy having forgotten it; what was typed stays beside it.
void TakeAway(Session& session, const std::string& path, bool edited) {
  if (!IsOnDisk(path)) return;
  if (edited) KeepCopy(session, path);
  const Pool pool;
  Check(svn_io_remove_file2(path.c_str(), /*ignore_enoent*/ TRUE, pool));
}

}  // namespace

void Settle(Session& session, const std::string& path) {
  const Pool pool;
  session.Svn().Run(svn_client_resolve(path.c_str(), svn_depth_empty, svn_wc_conflict_choose_merged,
                                       session.Context(), pool));
}

// libsvn takes away what it forgets, and calls an edited file a conflict: therefore it must not see the files.
void Forget(Session& session, const std::string& path) {
  const Silence silence(session);
  const LocalStatus local = AskLocal(session, path);
  if (local.Kind == Conflict::Lost) return Revert(session, local.Victim, svn_depth_infinity, Disk::Keep);
  const std::string gone = OutermostGone(session, path);
  if (gone.empty()) return;
  if (!IsOnDisk(gone)) return Update(session, {gone});
  const SetAside aside(gone);
  Update(session, {gone});
}

void GiveUp(Session& session, const std::string& path) {
  const LocalStatus local = AskLocal(session, path);
  if (local.Kind == Conflict::Lost) {
    Forget(session, path);
    return TakeAway(session, path, local.Modified);
  }
  if (local.IsConflicted() && local.Victim != path) {
    for (const auto& edited : EditedBelow(session, local.Victim)) KeepCopy(session, edited);
    return Revert(session, local.Victim, svn_depth_infinity, Disk::Restore);
  }
  RevertWithCopy(session, path);
  // Without a lock it was an edit of a file that the repository has no more.
  if (!local.IsConflicted() && !local.HasLock) Update(session, {path});
}

}  // namespace svnscc
