#include "LocalStatus.h"

#include <svn_io.h>

#include "Session.h"

namespace svnscc {
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

}  // namespace

LocalStatus AskLocal(const Session& session, const std::string& path) {
  const Pool pool;
  LocalStatus result;
  const bool onDisk = IsOnDisk(path);
  svn_wc_status3_t* status = nullptr;
  svn_error_t* error = svn_wc_status3(&status, session.Context()->wc_ctx, path.c_str(), pool, pool);
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
  result.Conflicted = status->conflicted;
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

}  // namespace svnscc
