// Renaming and moving in the repository.  The client moves the file on disk.
#include <filesystem>
#include <optional>

#include "subversion/commands/CommandStrings.h"
#include "subversion/commands/Commands.h"
#include "subversion/commands/TemporaryRename.h"
#include "subversion/project/OpenProject.h"
#include "subversion/svn/LocalStatus.h"
#include "subversion/svn/SvnStrings.h"

namespace kestrel::svnscc {
namespace {

/// Whether the file is checked out here.  Throws Failure if it cannot be renamed.
bool CheckSource(ProviderContext& context, const std::string& path) {
  const LocalStatus local = ReadLocalStatus(context, path);
  if (!local.IsControlled()) throw Failure(scc::SCC_E_FILENOTCONTROLLED, sNotControlled);
  if (local.IsFolder) throw Failure(scc::SCC_E_TYPENOTSUPPORTED, sNotAFile);
  const FileStatus status = FetchStatus(context, path);
  const auto has = [&](scc::Long bit) { return (status.Bits & bit) != 0; };
  if (has(scc::SCC_STATUS_DELETED)) throw Failure(scc::SCC_E_FILENOTCONTROLLED, sDeletedInRepository);
  if (has(scc::SCC_STATUS_OUTOTHER))
    throw Failure(scc::SCC_E_FILEOUTEXCLUSIVE, Format(sOutBy.Text, {status.LockOwner}));
  // The rename would put the local edits over changes that others checked in.
  if (has(scc::SCC_STATUS_OUTOFDATE) || local.IsConflicted())
    throw Failure(scc::SCC_E_OPNOTPERFORMED, sGetBeforeRename);
  if (has(scc::SCC_STATUS_OUTBYUSER) && !has(scc::SCC_STATUS_CHECKEDOUT))
    throw Failure(scc::SCC_E_FILEISCHECKEDOUT, sOutElsewhere);
  return has(scc::SCC_STATUS_CHECKEDOUT);
}

/// Creates and schedules the folders above the new name that the repository does not have, and returns them.
std::vector<std::string> PrepareFolders(ProviderContext& context, const std::string& path) {
  const std::string parent = ParentOf(path);
  if (!ReadLocalStatus(context, parent).IsControlled()) Update(context, {parent});
  const auto folders = NewFoldersAbove(context, path);
  if (folders.empty()) return folders;
  const Pool pool;
  Check(svn_io_make_dir_recursively(parent.c_str(), pool));
  context.Svn().Run(svn_client_add5(parent.c_str(), svn_depth_empty, /*force*/ FALSE, /*no_ignore*/ TRUE,
                                    /*no_autoprops*/ TRUE, /*add_parents*/ TRUE, context.ClientContext(),
                                    pool));
  return folders;
}

void Move(ProviderContext& context, const std::string& from, const std::string& to) {
  const Pool pool;
  context.Svn().Run(svn_client_move7(ToArray({from}, pool), to.c_str(), /*move_as_child*/ FALSE,
                                     /*make_parents*/ FALSE, /*allow_mixed_revisions*/ TRUE,
                                     /*metadata_only*/ FALSE, nullptr, nullptr, nullptr,
                                     context.ClientContext(), pool));
}

void Undo(ProviderContext& context, const std::string& from, const std::string& to,
          const std::vector<std::string>& folders) {
  std::vector<std::string> paths{to, from};
  paths.insert(paths.end(), folders.rbegin(), folders.rend());
  try {
    Revert(context, paths, svn_depth_empty, AddedFiles::Delete);
  } catch (const Failure& failure) {  // the original failure is the command's
    context.Out().Warning(failure.what());
  }
}

/// Moves and commits, with the client's files moved aside.
void MoveAndCommit(ProviderContext& context, const std::string& from, const std::string& to) {
  Revert(context, {from}, svn_depth_empty, AddedFiles::Delete);
  std::vector<std::string> folders;
  try {
    folders = PrepareFolders(context, to);
    Move(context, from, to);
    auto targets = folders;
    targets.insert(targets.end(), {from, to});
    Commit(context, targets, Format(sRenameLog.Text, {context.Label(from), context.Label(to)}),
           AfterCommit::Release);
  } catch (const Failure& failure) {
    Undo(context, from, to, folders);
    if (failure.Result() == scc::SCC_E_CHECKINCONFLICT)
      throw Failure(scc::SCC_E_FILEALREADYEXISTS, failure.what());
    throw;
  }
}

/// Scoped: restores a path on disk to what it was, a file or nothing.
class RestoredPath {
 public:
  explicit RestoredPath(const std::string& path) : path_(path) {
    if (IsOnDisk(path_)) file_.emplace(path_);
  }
  RestoredPath(const RestoredPath&) = delete;
  RestoredPath& operator=(const RestoredPath&) = delete;
  ~RestoredPath() {
    std::error_code ignored;
    if (!file_) std::filesystem::remove(path_, ignored);
  }

 private:
  std::string path_;
  std::optional<TemporaryRename> file_;
};

}  // namespace

scc::Long Rename(ProviderContext& context, const char* oldName, const char* newName) {
  const std::string from = context.InsidePath(oldName);
  const std::string to = context.InsidePath(newName);
  if (from.empty()) throw Failure(scc::SCC_E_FILENOTCONTROLLED, sOutsideProject);
  if (to.empty()) throw Failure(scc::SCC_E_OPNOTPERFORMED, sOutsideProject);
  if (from == to) return scc::SCC_OK;
  EnsureWorkingCopy(context);
  const bool wasOut = CheckSource(context, from);
  if (ReadLocalStatus(context, to).IsControlled())
    throw Failure(scc::SCC_E_FILEALREADYEXISTS, sAlreadyControlled);

  Outcome outcome(context);
  const RestoredPath oldPlace(from);
  const RestoredPath newPlace(to);
  MoveAndCommit(context, from, to);
  if (wasOut) Lock(context, {to}, "", ForeignLocks::Respect, outcome);
  return outcome.Result();
}

}  // namespace kestrel::svnscc
