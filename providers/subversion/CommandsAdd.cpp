// Putting new files under control.
#include <svn_dirent_uri.h>
#include <svn_io.h>
#include <svn_props.h>

#include "Commands.h"
#include "LocalStatus.h"
#include "OpenProject.h"
#include "SubversionSccStrings.h"
#include "host/System.h"

namespace svnscc {
namespace {

std::string ParentOf(const std::string& path) {
  const Pool pool;
  return svn_dirent_dirname(path.c_str(), pool);
}

/// A file out of libsvn's sight while this lives.
class SetAside {
 public:
  explicit SetAside(const std::string& path) : path_(path), aside_(path + ".scc-aside") {
    while (IsOnDisk(aside_)) aside_ += "~";
    Move(path_, aside_);
  }
  SetAside(const SetAside&) = delete;
  SetAside& operator=(const SetAside&) = delete;
  ~SetAside() {
    try {
      Move(aside_, path_);
    } catch (
        const Failure&) {  // both names are in one folder, which was just writable; nothing is lost either way
    }
  }

 private:
  static void Move(const std::string& from, const std::string& to) {
    const Pool pool;
    Check(svn_io_file_rename2(from.c_str(), to.c_str(), /*flush_to_disk*/ FALSE, pool));
  }

  std::string path_;
  std::string aside_;
};

/// Makes the working copy forget a file that was deleted in the repository, and keeps the file.
void ForgetDeleted(Session& session, const std::string& path) {
  if ((AskStatus(session, path).Bits & scc::SCC_STATUS_DELETED) == 0)
    throw Failure(scc::SCC_E_FILEALREADYEXISTS, sAlreadyControlled);
  const SetAside aside(path);
  Update(session, {path});
}

/// What `path` is after the working copy learnt what the repository has of it and its folders.
LocalStatus Acquaint(Session& session, const std::string& path) {
  LocalStatus local = AskLocal(session, path);
  if (local.State == LocalState::Unversioned) {
    Update(session, {path});
  } else if (local.IsControlled() && IsOnDisk(path)) {
    ForgetDeleted(session, path);
  }
  return AskLocal(session, path);
}

void CheckAddable(Session& session, const std::string& path) {
  if (!IsOnDisk(path)) throw Failure(scc::SCC_E_FILENOTEXIST, sFileMissing);
  if (!FileExists(path)) throw Failure(scc::SCC_E_TYPENOTSUPPORTED, sNotAFile);
  const LocalStatus local = Acquaint(session, path);
  if (local.IsControlled()) throw Failure(scc::SCC_E_FILEALREADYEXISTS, sAlreadyControlled);
}

/// The folders above `path` that the repository does not have yet, outermost first.
std::vector<std::string> NewFoldersAbove(const Session& session, const std::string& path) {
  std::vector<std::string> folders;
  for (std::string folder = ParentOf(path); folder != session.CurrentProject().Folder;
       folder = ParentOf(folder)) {
    if (AskLocal(session, folder).IsControlled()) break;
    folders.insert(folders.begin(), folder);
  }
  return folders;
}

void SetProperty(Session& session, const std::string& path, const char* name, const char* value) {
  const Pool pool;
  session.Svn().Run(svn_client_propset_local(name, svn_string_create(value, pool), ToArray({path}, pool),
                                             svn_depth_empty, /*skip_checks*/ TRUE, nullptr,
                                             session.Context(), pool));
}

void Schedule(Session& session, const std::string& path, scc::Long type) {
  const Pool pool;
  if (AskLocal(session, path).State != LocalState::Added)
    session.Svn().Run(svn_client_add5(path.c_str(), svn_depth_empty, /*force*/ FALSE, /*no_ignore*/ TRUE,
                                      /*no_autoprops*/ FALSE, /*add_parents*/ TRUE, session.Context(), pool));
  // Read-only until it is checked out, everywhere.
  SetProperty(session, path, SVN_PROP_NEEDS_LOCK, "*");
  if ((type & scc::SCC_FILETYPE_BINARY) != 0)
    SetProperty(session, path, SVN_PROP_MIME_TYPE, "application/octet-stream");
}

/// Takes a scheduling back that was not committed; the file stays.
void Unschedule(Session& session, const std::string& path, const std::vector<std::string>& folders) {
  const Pool pool;
  const std::string& top = folders.empty() ? path : folders.front();
  svn_error_clear(svn_client_revert4(ToArray({top}, pool), svn_depth_infinity, nullptr, FALSE,
                                     /*metadata_only*/ TRUE,
                                     /*added_keep_local*/ TRUE, session.Context(), pool));
}

/// Someone added the name at the same moment: to the API that is no conflict.
Failure AsAddFailure(const Failure& failure) {
  return failure.Result() == scc::SCC_E_CHECKINCONFLICT
             ? Failure(scc::SCC_E_FILEALREADYEXISTS, failure.what())
             : failure;
}

void AddOne(Session& session, const std::string& path, const std::string& comment, scc::Long type) {
  CheckAddable(session, path);
  auto targets = NewFoldersAbove(session, path);
  const auto folders = targets;
  targets.push_back(path);
  try {
    Schedule(session, path, type);
    Commit(session, targets, comment, AfterCommit::Release);
  } catch (const Failure& failure) {
    Unschedule(session, path, folders);
    throw AsAddFailure(failure);
  }
}

}  // namespace

scc::Long Add(Session& session, Names names, const std::string& comment, scc::Long type, AfterCommit after) {
  Outcome outcome(session);
  EnsureWorkingCopy(session);
  std::vector<std::string> added;
  for (const auto& path : outcome.PathsOf(names))
    if (outcome.Try(path, [&] { AddOne(session, path, comment, type); })) added.push_back(path);
  if (after == AfterCommit::KeepCheckedOut) Lock(session, added, comment, outcome);
  return outcome.Result();
}

}  // namespace svnscc
