// The file commands.  Each processes all of its files, reports every failure, and returns the last failure's code or
// SCC_OK.  A Failure that it throws concerns the whole call.
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
/// Renames or moves a file in the repository; leaves the files on disk alone.
scc::Long Rename(ProviderContext& context, const char* oldName, const char* newName);
scc::Long GetFiles(ProviderContext& context, Names names, const CommandOptions& options);

enum class Below { FilesOnly, Everything };
scc::Long GetFolders(ProviderContext& context, Names names, Below below, const CommandOptions& options);

/// Compares the file with the working copy's base, without contacting the repository.  `flags` are those of SccDiff.
/// Returns SCC_OK, SCC_I_FILEDIFFERS or an error code.
scc::Long QuickDiff(ProviderContext& context, const char* name, scc::Long flags);

// Steps shared by several commands.  They throw Failure.

/// Updates paths to the newest revision; fetches missing ones with their parent folders.  An obstructing file would become
/// a local edit (see MovedObstruction).
void Update(ProviderContext& context, const std::vector<std::string>& paths);
/// The same to `revision`.
void UpdateTo(ProviderContext& context, const std::vector<std::string>& paths,
              const svn_opt_revision_t& revision);
enum class AddedFiles { Keep, Delete };
/// Reverts local changes.  `added` says what happens to added files on disk.
void Revert(ProviderContext& context, const std::vector<std::string>& paths,
            svn_depth_t depth = svn_depth_empty, AddedFiles added = AddedFiles::Keep);
/// Takes back scheduled additions and deletions that were not committed, ignoring errors; leaves files on disk alone.
void Unschedule(ProviderContext& context, const std::vector<std::string>& paths);
/// Marks a text conflict as resolved.
void MarkResolved(ProviderContext& context, const std::string& path);
/// Resolve the conflicts of folders above these files, or below a folder.  Local edits stay in place where the repository
/// has no such file, else in copies beside the repository's version.
void ResolveFoldersAbove(ProviderContext& context, const std::vector<std::string>& paths);
void ResolveFoldersBelow(ProviderContext& context, const std::string& folder);
/// Removes a file that was deleted in the repository from the working copy, with the deleted folders above it.  All files
/// stay on disk.
void Unversion(ProviderContext& context, const std::string& path);
/// Resolves a conflict in favour of the repository, or reverts an edit.  Keeps local edits in copies beside the files.
void AcceptRepository(ProviderContext& context, const std::string& path);
/// Asks once for all paths whether to do so.  False also if no window can be shown.
bool AskToAcceptRepository(ProviderContext& context, const std::vector<std::string>& paths);
/// The folders above `path` inside the project that are not under control yet, outermost first.
std::vector<std::string> NewFoldersAbove(const ProviderContext& context, const std::string& path);
std::string ParentOf(const std::string& path);
/// Commits exactly `paths`, not what is below them, in one revision.
void Commit(ProviderContext& context, const std::vector<std::string>& paths, const std::string& log,
            AfterCommit locks);
enum class ForeignLocks { Respect, Steal };
/// Locks controlled files and makes them writable; updates outdated files first.  Returns the files that could not be
/// locked, with the reasons.
std::map<std::string, Failure> LockAvailable(ProviderContext& context, const std::vector<std::string>& paths,
                                             const std::string& comment,
                                             ForeignLocks others = ForeignLocks::Respect);
/// The same; records the refused files in `outcome`.
void Lock(ProviderContext& context, const std::vector<std::string>& paths, const std::string& comment,
          ForeignLocks others, Outcome& outcome);
/// Records the failure of one request for all of `paths`; if a lock is the reason, asks once which and whose.
void FailAll(ProviderContext& context, const std::vector<std::string>& paths, const Failure& failure,
             Outcome& outcome);
/// Reports files that are not checked out: as information if others of the call were, else as failures.
void ReportNotCheckedOut(ProviderContext& context, const std::vector<std::string>& paths, bool othersWereOut,
                         Outcome& outcome);
/// Releases locks of the working copy.
void Unlock(ProviderContext& context, const std::vector<std::string>& paths, Outcome& outcome);

}  // namespace kestrel::svnscc
