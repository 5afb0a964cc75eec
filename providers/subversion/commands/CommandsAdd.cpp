// Putting new files under control.
#include <svn_dirent_uri.h>
#include <svn_io.h>
#include <svn_props.h>

#include <algorithm>
#include <functional>
#include <set>

#include "subversion/commands/CommandStrings.h"
#include "subversion/commands/CommandTable.h"
#include "subversion/commands/Commands.h"
#include "subversion/commands/TemporaryRename.h"
#include "subversion/project/OpenProject.h"
#include "subversion/svn/LocalStatus.h"
#include "subversion/svn/NodeInfo.h"
#include "subversion/svn/Repository.h"
#include "system/System.h"

namespace kestrel::svnscc {
namespace {

/// The file, or the outermost folder above it that is not in the working copy: if the repository does not have that
/// folder, it has nothing below it.
std::string OutermostUnknown(const ProviderContext& context, const std::string& path) {
  const auto folders = NewFoldersAbove(context, path);
  return folders.empty() ? path : folders.front();
}

/// Whether the repository has folders above the file that are not in the working copy.
bool HasUnfetchedFolders(ProviderContext& context, const Survey& survey, const std::string& path) {
  const std::string unknown = OutermostUnknown(context, path);
  if (unknown == path) return false;  // the file has a status of its own
  if (survey.IsWalk()) return survey.StatusOf(unknown).Bits != 0;
  const Project& project = context.CurrentProject();
  const char* inside = svn_dirent_skip_ancestor(project.Folder.c_str(), unknown.c_str());
  return KindOf(context.Svn(), UrlOf(project.Url, inside)) != svn_node_none;
}

/// The nearest folder above that is in the working copy.
std::string KnownFolderAbove(const ProviderContext& context, const std::string& path) {
  std::string folder = ParentOf(path);
  while (folder != context.CurrentProject().Folder && !ReadLocalStatus(context, folder).IsControlled() &&
         !ReadLocalStatus(context, folder).IsConflicted())
    folder = ParentOf(folder);
  return folder;
}

/// Prepares the folders above a new file: fetches those that the repository has, unversions those it has deleted.
void PrepareFoldersAbove(ProviderContext& context, const Survey& survey, const std::string& path) {
  const std::string folder = KnownFolderAbove(context, path);
  if (folder != context.CurrentProject().Folder) {
    const FileStatus status = survey.IsWalk() ? survey.StatusOf(folder) : FetchStatus(context, folder);
    if ((status.Bits & scc::SCC_STATUS_DELETED) != 0) Unversion(context, folder);
  }
  if (HasUnfetchedFolders(context, survey, path)) Update(context, {path});
}

void CheckAddable(ProviderContext& context, const Survey& survey, const std::string& path) {
  if (!IsOnDisk(path)) throw Failure(scc::SCC_E_FILENOTEXIST, sFileMissing);
  if (!FileExists(path)) throw Failure(scc::SCC_E_TYPENOTSUPPORTED, sNotAFile);
  if (Require(survey.StateOf(path), Command::Add) == Step::Drop) Unversion(context, path);
  PrepareFoldersAbove(context, survey, path);
  if (ReadLocalStatus(context, path).IsControlled())
    throw Failure(scc::SCC_E_FILEALREADYEXISTS, sAlreadyControlled);
}

void SetProperty(ProviderContext& context, const std::string& path, const char* name, const char* value) {
  const Pool pool;
  context.Svn().Run(svn_client_propset_local(name, svn_string_create(value, pool), ToArray({path}, pool),
                                             svn_depth_empty, /*skip_checks*/ TRUE, nullptr,
                                             context.ClientContext(), pool));
}

void ScheduleAddition(ProviderContext& context, const std::string& path, scc::Long type,
                      const CommandOptions& options) {
  const Pool pool;
  if (ReadLocalStatus(context, path).State != LocalState::Added)
    context.Svn().Run(svn_client_add5(path.c_str(), svn_depth_empty, /*force*/ FALSE, /*no_ignore*/ TRUE,
                                      /*no_autoprops*/ FALSE, /*add_parents*/ TRUE, context.ClientContext(),
                                      pool));
  // svn:needs-lock makes the file read-only in every working copy that has not checked it out.
  if (!options.WithoutNeedsLock) SetProperty(context, path, SVN_PROP_NEEDS_LOCK, "*");
  if ((type & scc::SCC_FILETYPE_BINARY) != 0)
    SetProperty(context, path, SVN_PROP_MIME_TYPE, "application/octet-stream");
}

/// Another user added the file at the same time, which the API does not call a conflict.
Failure AsAddFailure(const Failure& failure) {
  return failure.Result() == scc::SCC_E_CHECKINCONFLICT
             ? Failure(scc::SCC_E_FILEALREADYEXISTS, failure.what())
             : failure;
}

/// The files that one call adds.
class Addition {
 public:
  Addition(ProviderContext& context, const std::string& comment, Outcome& outcome)
      : context_(context), comment_(comment), outcome_(outcome) {}

  void Schedule(const std::string& path, scc::Long type, const CommandOptions& options,
                const Survey& survey) {
    CheckAddable(context_, survey, path);
    const auto folders = NewFoldersAbove(context_, path);
    folders_.insert(folders.begin(), folders.end());
    scheduled_.push_back(path);
    try {
      ScheduleAddition(context_, path, type, options);
    } catch (const Failure&) {
      scheduled_.pop_back();
      Unschedule(context_, {path});
      throw;
    }
  }

  /// Commits all files in one revision if possible.  Returns the files that were added.
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
    Unschedule(context_, EmptyFolders());
    return added;
  }

  /// Takes back what was not committed.
  void Abandon() {
    Unschedule(context_, scheduled_);
    Unschedule(context_, EmptyFolders());
  }

 private:
  static bool ConcernsEverything(const Failure& failure) {
    return failure.Result() == scc::SCC_E_ACCESSFAILURE || failure.Result() == scc::SCC_E_CONNECTIONFAILURE ||
           failure.Result() == scc::SCC_E_INVALIDUSER || failure.Result() == scc::SCC_I_OPERATIONCANCELED;
  }

  void CommitWithFolders(const std::vector<std::string>& paths) {
    std::set<std::string> targets(paths.begin(), paths.end());
    for (const auto& path : paths)
      for (const auto& folder : NewFoldersAbove(context_, path)) targets.insert(folder);
    Commit(context_, {targets.begin(), targets.end()}, comment_, AfterCommit::Release);
  }

  /// A refused commit does not tell which files caused it: commits each alone.
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
    Unschedule(context_, paths);
    for (const auto& path : paths) outcome_.Fail(path, AsAddFailure(failure));
  }

  /// Folders scheduled for files that were not committed, innermost first.
  std::vector<std::string> EmptyFolders() const {
    std::vector<std::string> folders;
    for (auto folder = folders_.rbegin(); folder != folders_.rend(); ++folder)
      if (ReadLocalStatus(context_, *folder).State == LocalState::Added) folders.push_back(*folder);
    return folders;
  }

  ProviderContext& context_;
  const std::string& comment_;
  Outcome& outcome_;
  std::vector<std::string> scheduled_;
  std::set<std::string> folders_;
};

svn_revnum_t RevisionOf(ProviderContext& context, const std::string& path) {
  return LocalNodeInfo(context.Svn(), path).ChangedRevision;
}

/// Removes from `paths` the unchanged files that this context has added, and returns them: a client that adds a form with
/// its unit names the form twice.
std::vector<std::string> ExtractJustAdded(ProviderContext& context, const Survey& survey,
                                          std::vector<std::string>& paths) {
  const auto isKnown = [&](const std::string& path) {
    const auto added = context.JustAdded().find(path);
    return added != context.JustAdded().end() && survey.StateOf(path) == FileState::Current &&
           RevisionOf(context, path) == added->second;
  };
  const auto split = std::stable_partition(paths.begin(), paths.end(), std::not_fn(isKnown));
  std::vector<std::string> known(split, paths.end());
  paths.erase(split, paths.end());
  for (const auto& path : known) context.Out().Info(Format(sAddedAlready.Text, {context.Label(path)}));
  return known;
}

/// Reports a refused lock as a warning: the files have been added.
void CheckOutAdded(ProviderContext& context, const std::vector<std::string>& paths,
                   const std::string& comment) {
  if (paths.empty()) return;
  for (const auto& [path, refusal] : LockAvailable(context, paths, comment))
    context.Out().Warning(Format(sAddedNotOut.Text, {context.Label(path), refusal.what()}));
}

}  // namespace

std::string ParentOf(const std::string& path) {
  const Pool pool;
  return svn_dirent_dirname(path.c_str(), pool);
}

std::vector<std::string> NewFoldersAbove(const ProviderContext& context, const std::string& path) {
  std::vector<std::string> folders;
  for (std::string folder = ParentOf(path); folder != context.CurrentProject().Folder;
       folder = ParentOf(folder)) {
    if (ReadLocalStatus(context, folder).IsControlled()) break;
    folders.insert(folders.begin(), folder);
  }
  return folders;
}

scc::Long Add(ProviderContext& context, Names names, const std::string& comment, scc::Long type,
              AfterCommit after, const CommandOptions& options) {
  Outcome outcome(context);
  EnsureWorkingCopy(context);
  auto paths = outcome.PathsOf(names);
  ResolveFoldersAbove(context, paths);
  const Survey survey(context, paths);
  if (survey.Result() < 0) return survey.Result();
  const std::vector<std::string> known = ExtractJustAdded(context, survey, paths);

  Addition addition(context, comment, outcome);
  std::vector<std::string> added;
  try {
    for (const auto& path : paths) outcome.Try(path, [&] { addition.Schedule(path, type, options, survey); });
    added = addition.Run();
  } catch (const Failure&) {
    addition.Abandon();
    throw;
  }
  for (const auto& path : added) context.JustAdded()[path] = RevisionOf(context, path);
  added.insert(added.end(), known.begin(), known.end());
  if (after == AfterCommit::KeepCheckedOut) CheckOutAdded(context, added, comment);
  return outcome.Result();
}

}  // namespace kestrel::svnscc
