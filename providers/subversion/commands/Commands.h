// The file commands.  Each works on all files it is given, tells the user about every one that fails, and returns the
// last failure's code or SCC_OK.  A Failure thrown out of one concerns the whole call.
#pragma once

#include <string>

#include "subversion/svn/ProviderContext.h"

namespace kestrel::svnscc {

enum class AfterCommit { Release, KeepCheckedOut };

scc::Long CheckOut(ProviderContext& context, Names names, const std::string& comment,
                   const CommandOptions& options);
scc::Long UndoCheckOut(ProviderContext& context, Names names);
scc::Long CheckIn(ProviderContext& context, Names names, const std::string& comment, AfterCommit after,
                  const CommandOptions& options);
/// `type` holds at most one of the SCC_FILETYPE flags.
scc::Long Add(ProviderContext& context, Names names, const std::string& comment, scc::Long type,
              AfterCommit after, const CommandOptions& options);
scc::Long Remove(ProviderContext& context, Names names, const std::string& comment);
/// Renames or moves a file in the repository; what is on disk stays where it is, under either name.
scc::Long Rename(ProviderContext& context, const char* oldName, const char* newName);
scc::Long GetFiles(ProviderContext& context, Names names, const CommandOptions& options);

enum class Below { FilesOnly, Everything };
scc::Long GetFolders(ProviderContext& context, Names names, Below below, const CommandOptions& options);

/// Compares the file with what was last fetched, without asking the repository: SCC_OK or SCC_I_FILEDIFFERS.  `flags`
/// are those of SccDiff.
scc::Long QuickDiff(ProviderContext& context, const char* name, scc::Long flags);

// Steps that several commands share.

/// Brings a path up to date, fetching it and its parent folders when only the repository has them.  No local file may
/// stand in the way: it would count as an edit (see MovedObstruction).
void Update(ProviderContext& context, const std::vector<std::string>& paths);
/// The same to a given revision, each path by itself.
void UpdateTo(ProviderContext& context, const std::vector<std::string>& paths,
              const svn_opt_revision_t& revision);
/// Takes a conflict in a text for settled.
void MarkResolved(ProviderContext& context, const std::string& path);
/// End conflicts of folders: above these files, or of all below a folder.  Edits stay where the repository has no such
/// file, and in copies beside the repository's otherwise.
void ResolveFoldersAbove(ProviderContext& context, const std::vector<std::string>& paths);
void ResolveFoldersBelow(ProviderContext& context, const std::string& folder);
/// Makes the working copy forget a file that was deleted in the repository, with the folders above it that were deleted,
/// too.  All files in them stay on disk.
void Forget(ProviderContext& context, const std::string& path);
/// Ends a conflict, or an edit, in favour of the repository.  Edits are kept in copies beside the files.
void AcceptRepository(ProviderContext& context, const std::string& path);
/// Asks, once for all, whether to give up what is here of these files in conflict.  False also when nothing can be asked.
bool AskToAcceptRepository(ProviderContext& context, const std::vector<std::string>& paths);
/// The folders above `path`, up to the project's, that the repository does not have yet, outermost first.
std::vector<std::string> NewFoldersAbove(const ProviderContext& context, const std::string& path);
std::string ParentOf(const std::string& path);
/// Commits `paths`, each on its own, in one revision.  Throws Failure when nothing was committed.
void Commit(ProviderContext& context, const std::vector<std::string>& paths, const std::string& log,
            AfterCommit locks);
enum class ForeignLocks { Respect, Steal };
/// Locks controlled files and makes them writable; a file that is out of date is updated first.  Returns who was refused,
/// and why.
std::map<std::string, Failure> LockAvailable(ProviderContext& context, const std::vector<std::string>& paths,
                                             const std::string& comment,
                                             ForeignLocks others = ForeignLocks::Respect);
/// The same; refusals are failures.
void Lock(ProviderContext& context, const std::vector<std::string>& paths, const std::string& comment,
          ForeignLocks others, Outcome& outcome);
/// Tells of files that were named with others and are not checked out: a failure only when none of the others was.
void ReportNotCheckedOut(ProviderContext& context, const std::vector<std::string>& paths, bool othersWereOut,
                         Outcome& outcome);
/// Releases locks that the working copy holds.
void Unlock(ProviderContext& context, const std::vector<std::string>& paths, Outcome& outcome);

}  // namespace kestrel::svnscc
