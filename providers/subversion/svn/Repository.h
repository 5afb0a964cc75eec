// Addresses of repositories, paths inside them, and requests to them.
#pragma once

#include <svn_types.h>

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "subversion/svn/Client.h"

namespace kestrel::svnscc {

/// Whether an absolute path, such as one below /proc, means another place in each process.
bool IsPerProcess(const std::string& path);
/// Canonicalises an address, which is a URL or the absolute path of a local folder.  nullopt if `text` is neither, or if
/// the folder is not the same for every process (IsPerProcess).
std::optional<std::string> ToRepositoryUrl(const std::string& text);
/// Canonicalises a path in a repository, empty for the root; nullopt if `text` is no such path.
std::optional<std::string> ToProjectPath(const std::string& text);
/// The reverse, for display and for the client's storage: the root is "/".
std::string ToProjectName(const std::string& path);
/// The address of `path` in the repository at `url`.
std::string UrlOf(const std::string& url, const std::string& path);
/// `url` for display, with escapes decoded.
std::string ReadableUrl(const std::string& url);

/// An address split into that of the repository and the path in it.
struct RepositoryPlace {
  std::string Root;
  std::string Path;
};
/// From the working copy, without contacting the repository.  Throws Failure.
RepositoryPlace PlaceOfWorkingCopy(Client& client, const std::string& folder);
// The following contact the repository and throw Failure.
RepositoryPlace PlaceOf(Client& client, const std::string& url);
svn_node_kind_t KindOf(Client& client, const std::string& url);
/// The names of the folders in the folder at `url`, sorted.
std::vector<std::string> FoldersIn(Client& client, const std::string& url);
/// The files below `url` at any depth, relative to it; {""} if `url` is a file, empty if there is nothing at `url`.
std::vector<std::string> FilesBelow(Client& client, const std::string& url);
/// Creates the folder and its missing parents; returns the revision.
svn_revnum_t MakeFolder(Client& client, const std::string& url, const std::string& log);

/// The owners of locks on files below `url`, by path relative to it.
std::map<std::string, std::string> LockOwnersBelow(Client& client, const std::string& url);

/// Creates an empty repository in `folder`, which is missing or empty; returns its URL.  Throws Failure.
std::string CreateRepository(const std::string& folder);

/// The URL of which `folder` is a working copy, or nullopt.  Throws Failure if the working copy is locked.
std::optional<std::string> UrlOfWorkingCopy(Client& client, const std::string& folder);

}  // namespace kestrel::svnscc
