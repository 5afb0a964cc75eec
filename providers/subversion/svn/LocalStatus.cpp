#include "subversion/svn/LocalStatus.h"

#include <svn_client.h>
#include <svn_dirent_uri.h>
#include <svn_io.h>
#include <svn_props.h>

#include <cstring>

#include "subversion/svn/ProviderContext.h"
#include "system/System.h"

namespace kestrel::svnscc {
namespace {

LocalState StateOf(const svn_wc_status3_t& status, bool onDisk) {
  switch (status.node_status) {
    case svn_wc_status_none:
      return LocalState::Absent;
    case svn_wc_status_unversioned:
    case svn_wc_status_ignored:
    case svn_wc_status_external:
      return onDisk ? LocalState::Unversioned : LocalState::Absent;
    case svn_wc_status_added:
      return LocalState::Added;
    case svn_wc_status_missing:
      return LocalState::Missing;
    default:
      return onDisk ? LocalState::Controlled : LocalState::Missing;
  }
}

bool IsChanged(svn_wc_status_kind kind) {
  return kind == svn_wc_status_modified || kind == svn_wc_status_conflicted;
}

/// Whether the text still contains conflict markers.
bool HasConflictMarks(const std::string& path) {
  const std::string text = "\n" + ReadWholeFile(path);
  return text.find("\n<<<<<<< ") != std::string::npos || text.find("\n>>>>>>> ") != std::string::npos;
}

Conflict KindOfConflict(const ProviderContext& context, const std::string& path) {
  const Pool pool;
  svn_client_conflict_t* conflict = nullptr;
  svn_boolean_t text = FALSE;
  svn_boolean_t tree = FALSE;
  apr_array_header_t* properties = nullptr;
  Check(svn_client_conflict_get(&conflict, path.c_str(), context.ClientContext(), pool, pool));
  Check(svn_client_conflict_get_conflicted(&text, &properties, &tree, conflict, pool, pool));
  if (tree) {
    const bool isLost = svn_client_conflict_get_incoming_change(conflict) == svn_wc_conflict_action_delete;
    return isLost ? Conflict::Lost : Conflict::Open;
  }
  const char* type = svn_client_conflict_text_get_mime_type(conflict);
  const bool merged = text && properties->nelts == 0 && (type == nullptr || !svn_mime_type_is_binary(type));
  if (!merged || !IsOnDisk(path)) return Conflict::Open;
  return HasConflictMarks(path) ? Conflict::Marked : Conflict::Edited;
}

/// Applies the conflict of a folder above: libsvn turns its files into copies of what was deleted.
void InheritConflict(const ProviderContext& context, LocalStatus& status, const std::string& path) {
  const std::string& top = context.CurrentProject().Folder;
  const Pool pool;
  for (const char* folder = path.c_str();
       folder != top && !svn_dirent_is_root(folder, std::strlen(folder));) {
    folder = svn_dirent_dirname(folder, pool);
    svn_wc_status3_t* above = nullptr;
    Check(svn_wc_status3(&above, context.ClientContext()->wc_ctx, folder, pool, pool));
    if (!above->copied) return;
    if (!above->conflicted) continue;
    status.Victim = folder;
    status.Kind = KindOfConflict(context, folder);
    return;
  }
}

}  // namespace

LocalStatus ReadLocalStatus(const ProviderContext& context, const std::string& path) {
  const Pool pool;
  LocalStatus result;
  const bool onDisk = IsOnDisk(path);
  svn_wc_status3_t* status = nullptr;
  svn_error_t* error = svn_wc_status3(&status, context.ClientContext()->wc_ctx, path.c_str(), pool, pool);
  if (error != SVN_NO_ERROR) {
    const Failure failure = ToFailure(error);
    svn_error_clear(error);
    // Below a folder that is not versioned itself.
    if (!failure.MeansNoWorkingCopy()) throw failure;
    result.State = onDisk ? LocalState::Unversioned : LocalState::Absent;
    return result;
  }
  result.State = StateOf(*status, onDisk);
  result.IsFolder = status->kind == svn_node_dir;
  result.Differs = IsChanged(status->text_status);
  result.Modified = result.Differs || IsChanged(status->prop_status);
  if (status->conflicted) {
    result.Victim = path;
    result.Kind = KindOfConflict(context, path);
  } else if (status->copied) {
    InheritConflict(context, result, path);
  }
  result.HasLock = status->lock != nullptr;
  result.Depth = status->depth;
  return result;
}

bool IsOnDisk(const std::string& path) {
  const Pool pool;
  svn_node_kind_t kind = svn_node_none;
  svn_error_t* error = svn_io_check_path(path.c_str(), &kind, pool);
  svn_error_clear(error);
  return error == SVN_NO_ERROR && kind != svn_node_none;
}

void MakeWritable(const std::string& path) {
  const Pool pool;
  Check(svn_io_set_file_read_write(path.c_str(), /*ignore_enoent*/ TRUE, pool));
}

}  // namespace kestrel::svnscc
