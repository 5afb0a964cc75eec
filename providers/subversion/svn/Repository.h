// Repositories as such: their addresses, their folders, making new ones.
#pragma once

#include <svn_types.h>

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "subversion/svn/Client.h"

namespace kestrel::svnscc {

/// Whether an absolute path means another place in each process, as what lies below /proc does.
bool IsPerProcess(const std::string& path);
/// The address that `text` means, as libsvn spells it: a URL, or the absolute name of a local folder.  nullopt when it
/// is neither, or names a local folder that is not the same for every process.
std::optional<std::string> ToRepositoryUrl(const std::string& text);
/// A path in a repository as libsvn spells it, empty for its root; nullopt when `text` is none.
std::optional<std::string> ToProjectPath(const std::string& text);
/// The other way round, for people and for the client's storage: the root is "/".
std::string ToProjectName(const std::string& path);
/// The address of `path` in the repository at `url`.
std::string UrlOf(const std::string& url, const std::string& path);
/// An address for people, without escapes.
std::string ReadableUrl(const std::string& url);

/// Where an address lies: the repository's own address and the path in it.
struct RepositoryPlace {
  std::string Root;
  std::string Path;
};
/// Where a working copy's folder lies, as it knows itself.  Throws Failure.
RepositoryPlace PlaceOfWorkingCopy(Client& client, const std::string& folder);
// The following ask the repository and throw Failure.
RepositoryPlace PlaceOf(Client& client, const std::string& url);
svn_node_kind_t KindOf(Client& client, const std::string& url);
/// The names of the folders in the folder at `url`, sorted.
std::vector<std::string> FoldersIn(Client& client, const std::string& url);
/// The files below `url` at any depth, by their paths relative to it; one of them is "" when `url` is a file.  None when
/// there is nothing at `url`.
std::vector<std::string> FilesBelow(Client& client, const std::string& url);
/// Makes the folder with all folders above it; returns the revision.
svn_revnum_t MakeFolder(Client& client, const std::string& url, const std::string& log);

/// Who holds locks on files below `url`, by their paths relative to it.
std::map<std::string, std::string> LockOwnersBelow(Client& client, const std::string& url);

/// Makes an empty repository in `folder`, which is missing or empty; returns its address.  Throws Failure.
std::string CreateRepository(const std::string& folder);

/// The address of which `folder` is a working copy, or nullopt.  Throws Failure when another process is at work there.
std::optional<std::string> UrlOfWorkingCopy(Client& client, const std::string& folder);

}  // namespace kestrel::svnscc
