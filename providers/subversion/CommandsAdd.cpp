// Putting new files under control.
#include <svn_dirent_uri.h>
#include <svn_io.h>
#include <svn_props.h>

#include <algorithm>
#include <functional>
#include <set>

#include "CommandTable.h"
#include "Commands.h"
#include "LocalStatus.h"
#include "Nodes.h"
#include "OpenProject.h"
#include "Repository.h"
#include "SetAside.h"
#include "SubversionSccStrings.h"
#include "host/System.h"

namespace svnscc {
namespace {

/// The file, or the outermost of the folders above it that the working copy does not know: what is not in the repository
/// under that name is not there below it either.
std::string OutermostUnknown(const Session& session, const std::string& path) {
  const auto folders = NewFoldersAbove(session, path);
  return folders.empty() ? path : folders.front();
}

/// Whether the repository can have folders above the file that the working copy does not know yet.
bool MayBeInRepository(Session& session, const Survey& survey, bool isAlone, const std::string& path) {
  const std::string unknown = OutermostUnknown(session, path);
  if (unknown == path) return false;  // then the file would have a status of its own
  if (!isAlone) return survey.StatusOf(unknown).Bits != 0;
  const Project& project = session.CurrentProject();
  const char* inside = svn_dirent_skip_ancestor(project.Folder.c_str(), unknown.c_str());
  return KindOf(session.Svn(), UrlOf(project.Url, inside)) != svn_node_none;
}

/// The nearest folder above that the working copy knows.
std::string KnownFolderAbove(const Session& session, const std::string& path) {
  std::string folder = ParentOf(path);
  while (folder != session.CurrentProject().Folder && !AskLocal(session, folder).IsControlled() &&
         !AskLocal(session, folder).IsConflicted())
    folder = ParentOf(folder);
  return folder;
}

/// Readies the folders above a new file: what the repository has of them is fetched, what it has no more is forgotten.
void PrepareFoldersAbove(Session& session, const Survey& survey, bool isAlone, const std::string& path) {
  const std::string folder = KnownFolderAbove(session, path);
  if (folder != session.CurrentProject().Folder) {
    const FileStatus status = isAlone ? AskStatus(session, folder) : survey.StatusOf(folder);
    if ((status.Bits & scc::SCC_STATUS_DELETED) != 0) Forget(session, folder);
  }
  if (MayBeInRepository(session, survey, isAlone, path)) Update(session, {path});
}

void CheckAddable(Session& session, const Survey& survey, bool isAlone, const std::string& path) {
  if (!IsOnDisk(path)) throw Failure(scc::SCC_E_FILENOTEXIST, sFileMissing);
  if (!FileExists(path)) throw Failure(scc::SCC_E_TYPENOTSUPPORTED, sNotAFile);
  if (Require(survey.StateOf(path), Command::Add) == Step::Forget) Forget(session, path);
  PrepareFoldersAbove(session, survey, isAlone, path);
  if (AskLocal(session, path).IsControlled()) throw Failure(scc::SCC_E_FILEALREADYEXISTS, sAlreadyControlled);
}

void SetProperty(Session& session, const std::string& path, const char* name, const char* value) {
  const Pool pool;
  session.Svn().Run(svn_client_propset_local(name, svn_string_create(value, pool), ToArray({path}, pool),
                                             svn_depth_empty, /*skip_checks*/ TRUE, nullptr,
                                             session.Context(), pool));
}

void Schedule(Session& session, const std::string& path, scc::Long type, const CommandOptions& options) {
  const Pool pool;
  if (AskLocal(session, path).State != LocalState::Added)
    session.Svn().Run(svn_client_add5(path.c_str(), svn_depth_empty, /*force*/ FALSE, /*no_ignore*/ TRUE,
                                      /*no_autoprops*/ FALSE, /*add_parents*/ TRUE, session.Context(), pool));
  // Read-only until it is checked out, everywhere.
  if (!options.WithoutNeedsLock) SetProperty(session, path, SVN_PROP_NEEDS_LOCK, "*");
  if ((type & scc::SCC_FILETYPE_BINARY) != 0)
    SetProperty(session, path, SVN_PROP_MIME_TYPE, "application/octet-stream");
}

/// Someone added the name at the same moment: to the API that is no conflict.
Failure AsAddFailure(const Failure& failure) {
  return failure.Result() == scc::SCC_E_CHECKINCONFLICT
             ? Failure(scc::SCC_E_FILEALREADYEXISTS, failure.what())
             : failure;
}

/// The files of one call on their way into the repository.
class Addition {
 public:
  Addition(Session& session, const std::string& comment, Outcome& outcome)
      : session_(session), comment_(comment), outcome_(outcome) {}

  void Take(const std::string& path, scc::Long type, const CommandOptions& options, const Survey& survey,
            bool isAlone) {
    CheckAddable(session_, survey, isAlone, path);
    const auto folders = NewFoldersAbove(session_, path);
    folders_.insert(folders.begin(), folders.end());
    scheduled_.push_back(path);
    try {
      Schedule(session_, path, type, options);
    } catch (const Failure&) {
      scheduled_.pop_back();
      Unschedule({path});
      throw;
    }
  }

  /// One revision for all, so that nobody sees half of it.  Returns what was added.
  std::vector<std::string> Run() {
    std::vector<std::string> added;
    if (!scheduled_.empty()) try {
        CommitWithFolders(scheduled_);
        added = scheduled_;
      } catch (const Failure& failure) {
        if (scheduled_.size() == 1 || ConcernsEverything(failure))
          Refuse(scheduled_, failure);
        else
          added = RunOneByOne();
      }
    Unschedule(EmptyFolders());
    return added;
  }

  /// Forgets what was not committed.
  void Abandon() {
    Unschedule(scheduled_);
    Unschedule(EmptyFolders());
  }

 private:
  static bool ConcernsEverything(const Failure& failure) {
    return failure.Result() == scc::SCC_E_ACCESSFAILURE || failure.Result() == scc::SCC_E_CONNECTIONFAILURE ||
           failure.Result() == scc::SCC_E_INVALIDUSER || failure.Result() == scc::SCC_I_OPERATIONCANCELED;
  }

  void CommitWithFolders(const std::vector<std::string>& paths) {
    std::set<std::string> targets(paths.begin(), paths.end());
    for (const auto& path : paths)
      for (const auto& folder : NewFoldersAbove(session_, path)) targets.insert(folder);
    Commit(session_, {targets.begin(), targets.end()}, comment_, AfterCommit::Release);
  }

  /// Some of the files were refused, and a commit does not say which: the others need not suffer.
  std::vector<std::string> RunOneByOne() {
    std::vector<std::string> added;
    for (const auto& path : scheduled_) {
      try {
        CommitWithFolders({path});
        added.push_back(path);
      } catch (const Failure& failure) {
        Refuse({path}, failure);
      }
    }
    return added;
  }

  void Refuse(const std::vector<std::string>& paths, const Failure& failure) {
    Unschedule(paths);
    for (const auto& path : paths) outcome_.Fail(path, AsAddFailure(failure));
  }

  /// Takes schedulings back that were not committed; what is on disk stays.
  void Unschedule(const std::vector<std::string>& paths) {
    if (paths.empty()) return;
    const Silence silence(session_);
    const Pool pool;
    svn_error_clear(svn_client_revert4(ToArray(paths, pool), svn_depth_empty, nullptr, FALSE,
                                       /*metadata_only*/ TRUE,
                                       /*added_keep_local*/ TRUE, session_.Context(), pool));
  }

  /// Folders that were scheduled for files that did not come, innermost first.
  std::vector<std::string> EmptyFolders() const {
    std::vector<std::string> folders;
    for (auto folder = folders_.rbegin(); folder != folders_.rend(); ++folder)
      if (AskLocal(session_, *folder).State == LocalState::Added) folders.push_back(*folder);
    return folders;
  }

  Session& session_;
  const std::string& comment_;
  Outcome& outcome_;
  std::vector<std::string> scheduled_;
  std::set<std::string> folders_;
};

svn_revnum_t RevisionOf(Session& session, const std::string& path) {
  return LocalFactsOf(session.Svn(), path).ChangedRevision;
}

/// Takes those out of `paths` that this session added and nobody touched since, and returns them: clients name a form
/// twice when they add it with its unit.
std::vector<std::string> TakeJustAdded(Session& session, const Survey& survey,
                                       std::vector<std::string>& paths) {
  const auto isKnown = [&](const std::string& path) {
    const auto added = session.JustAdded().find(path);
    return added != session.JustAdded().end() && survey.StateOf(path) == FileState::Current &&
           RevisionOf(session, path) == added->second;
  };
  const auto split = std::stable_partition(paths.begin(), paths.end(), std::not_fn(isKnown));
  std::vector<std::string> known(split, paths.end());
  paths.erase(split, paths.end());
  for (const auto& path : known) session.Out().Info(Format(sAddedAlready.Text, {session.Label(path)}));
  return known;
}

/// The files are in the repository: a lock that was refused does not make that a failure.
void CheckOutAdded(Session& session, const std::vector<std::string>& paths, const std::string& comment) {
  if (paths.empty()) return;
  for (const auto& [path, refusal] : LockWhatCanBe(session, paths, comment))
    session.Out().Warning(Format(sAddedNotOut.Text, {session.Label(path), refusal.what()}));
}

}  // namespace

std::string ParentOf(const std::string& path) {
  const Pool pool;
  return svn_dirent_dirname(path.c_str(), pool);
}

std::vector<std::string> NewFoldersAbove(const Session& session, const std::string& path) {
  std::vector<std::string> folders;
  for (std::string folder = ParentOf(path); folder != session.CurrentProject().Folder;
       folder = ParentOf(folder)) {
    if (AskLocal(session, folder).IsControlled()) break;
    folders.insert(folders.begin(), folder);
  }
  return folders;
}

scc::Long Add(Session& session, Names names, const std::string& comment, scc::Long type, AfterCommit after,
              const CommandOptions& options) {
  Outcome outcome(session);
  EnsureWorkingCopy(session);
  auto paths = outcome.PathsOf(names);
  SettleFoldersAbove(session, paths);
  const Survey survey(session, paths);
  if (survey.Result() < 0) return survey.Result();
  const bool isAlone = paths.size() == 1;
  const std::vector<std::string> known = TakeJustAdded(session, survey, paths);

  Addition addition(session, comment, outcome);
  std::vector<std::string> added;
  try {
    for (const auto& path : paths)
      outcome.Try(path, [&] { addition.Take(path, type, options, survey, isAlone); });
    added = addition.Run();
  } catch (const Failure&) {
    addition.Abandon();
    throw;
  }
  for (const auto& path : added) session.JustAdded()[path] = RevisionOf(session, path);
  added.insert(added.end(), known.begin(), known.end());
  if (after == AfterCommit::KeepCheckedOut) CheckOutAdded(session, added, comment);
  return outcome.Result();
}

}  // namespace svnscc
