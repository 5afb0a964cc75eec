// Renaming and moving in the repository.  The file on disk is the client's: wherever it is, there it stays.
#include <filesystem>
#include <optional>

#include "Commands.h"
#include "LocalStatus.h"
#include "OpenProject.h"
#include "SetAside.h"
#include "SubversionSccStrings.h"
#include "WindowStrings.h"

namespace svnscc {
namespace {

/// Throws unless the file can be renamed; whether it is checked out here.
bool CheckSource(Session& session, const std::string& path) {
  const LocalStatus local = AskLocal(session, path);
  if (!local.IsControlled()) throw Failure(scc::SCC_E_FILENOTCONTROLLED, sNotControlled);
  if (local.IsFolder) throw Failure(scc::SCC_E_TYPENOTSUPPORTED, sNotAFile);
  const scc::Long bits = AskStatus(session, path).Bits;
  const auto has = [&](scc::Long bit) { return (bits & bit) != 0; };
  if (has(scc::SCC_STATUS_DELETED)) throw Failure(scc::SCC_E_FILENOTCONTROLLED, sDeletedInRepository);
  if (has(scc::SCC_STATUS_OUTOTHER)) throw Failure(scc::SCC_E_FILEOUTEXCLUSIVE, sOutByOther);
  // The local edits would be laid over what others checked in.
  if (has(scc::SCC_STATUS_OUTOFDATE) || local.IsConflicted())
    throw Failure(scc::SCC_E_OPNOTPERFORMED, sGetBeforeRename);
  if (has(scc::SCC_STATUS_OUTBYUSER) && !has(scc::SCC_STATUS_CHECKEDOUT))
    throw Failure(scc::SCC_E_FILEISCHECKEDOUT, sOutElsewhere);
  return has(scc::SCC_STATUS_CHECKEDOUT);
}

void Revert(Session& session, const std::vector<std::string>& paths) {
  const Pool pool;
  session.Svn().Run(svn_client_revert4(ToArray(paths, pool), svn_depth_empty, nullptr, FALSE,
                                       /*metadata_only*/ FALSE,
                                       /*added_keep_local*/ FALSE, session.Context(), pool));
}

/// Folders above the new name that the repository does not have, made and scheduled.
std::vector<std::string> PrepareFolders(Session& session, const std::string& path) {
  const std::string parent = ParentOf(path);
  if (!AskLocal(session, parent).IsControlled()) Update(session, {parent});
  const auto folders = NewFoldersAbove(session, path);
  if (folders.empty()) return folders;
  const Pool pool;
  Check(svn_io_make_dir_recursively(parent.c_str(), pool));
  session.Svn().Run(svn_client_add5(parent.c_str(), svn_depth_empty, /*force*/ FALSE, /*no_ignore*/ TRUE,
                                    /*no_autoprops*/ TRUE, /*add_parents*/ TRUE, session.Context(), pool));
  return folders;
}

void Move(Session& session, const std::string& from, const std::string& to) {
  const Pool pool;
  session.Svn().Run(svn_client_move7(ToArray({from}, pool), to.c_str(), /*move_as_child*/ FALSE,
                                     /*make_parents*/ FALSE, /*allow_mixed_revisions*/ TRUE,
                                     /*metadata_only*/ FALSE, nullptr, nullptr, nullptr, session.Context(),
                                     pool));
}

void Undo(Session& session, const std::string& from, const std::string& to,
          const std::vector<std::string>& folders) {
  std::vector<std::string> paths{to, from};
  paths.insert(paths.end(), folders.rbegin(), folders.rend());
  try {
    Revert(session, paths);
  } catch (const Failure& failure) {  // the failure that led here is the one to be told
    session.Out().Warning(failure.what());
  }
}

/// What the commit needs on disk, with the client's files out of the way.
void MoveAndCommit(Session& session, const std::string& from, const std::string& to) {
  Revert(session, {from});
  std::vector<std::string> folders;
  try {
    folders = PrepareFolders(session, to);
    Move(session, from, to);
    auto targets = folders;
    targets.insert(targets.end(), {from, to});
    Commit(session, targets, Format(sRenameLog.Text, {session.Label(from), session.Label(to)}),
           AfterCommit::Release);
  } catch (const Failure& failure) {
    Undo(session, from, to, folders);
    if (failure.Result() == scc::SCC_E_CHECKINCONFLICT)
      throw Failure(scc::SCC_E_FILEALREADYEXISTS, failure.what());
    throw;
  }
}

/// A place on disk that looks afterwards as it did before, whatever libsvn does there.
class KeptPlace {
 public:
  explicit KeptPlace(const std::string& path) : path_(path) {
    if (IsOnDisk(path_)) file_.emplace(path_);
  }
  KeptPlace(const KeptPlace&) = delete;
  KeptPlace& operator=(const KeptPlace&) = delete;
  ~KeptPlace() {
    std::error_code ignored;
    if (!file_) std::filesystem::remove(path_, ignored);
  }

 private:
  std::string path_;
  std::optional<SetAside> file_;
};

}  // namespace

scc::Long Rename(Session& session, const char* oldName, const char* newName) {
  const std::string from = session.InsidePath(oldName);
  const std::string to = session.InsidePath(newName);
  if (from.empty()) throw Failure(scc::SCC_E_FILENOTCONTROLLED, sOutsideProject);
  if (to.empty()) throw Failure(scc::SCC_E_OPNOTPERFORMED, sOutsideProject);
  if (from == to) return scc::SCC_OK;
  EnsureWorkingCopy(session);
  const bool wasOut = CheckSource(session, from);
  if (AskLocal(session, to).IsControlled()) throw Failure(scc::SCC_E_FILEALREADYEXISTS, sAlreadyControlled);

  Outcome outcome(session);
  const KeptPlace oldPlace(from);
  const KeptPlace newPlace(to);
  MoveAndCommit(session, from, to);
  if (wasOut) Lock(session, {to}, "", OthersLocks::Respect, outcome);
  return outcome.Result();
}

}  // namespace svnscc
