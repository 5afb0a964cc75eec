#include "subversion/svn/Repository.h"

#include <svn_dirent_uri.h>
#include <svn_path.h>
#include <svn_ra.h>
#include <svn_repos.h>

#include <algorithm>
#include <array>

#include "subversion/svn/SvnStrings.h"
#include "system/Text.h"

namespace kestrel::svnscc {
namespace {

/// "/proc/self/cwd" is the current directory; the numbers in these folders are open files and directories.
constexpr std::array kPerProcess{"/proc", "/dev/fd"};

struct Listing {
  svn_node_kind_t kind;
  std::vector<std::string> names;
  std::exception_ptr exception;
};

svn_error_t* OnEntry(void* baton, const char* path, const svn_dirent_t* entry, const svn_lock_t*, const char*,
                     const char*, const char*, apr_pool_t*) noexcept {
  auto& listing = *static_cast<Listing*>(baton);
  return RunInCallback(listing.exception, [&] {
    if (entry->kind == listing.kind && (*path != '\0' || entry->kind == svn_node_file))
      listing.names.emplace_back(path);
  });
}

/// The entries of `kind` below `url`, sorted.
std::vector<std::string> List(Client& client, const std::string& url, svn_node_kind_t kind,
                              svn_depth_t depth) {
  const Pool pool;
  const svn_opt_revision_t head = Newest();
  Listing listing{kind, {}, nullptr};
  svn_error_t* error =
      svn_client_list4(url.c_str(), &head, &head, nullptr, depth, SVN_DIRENT_KIND, /*fetch_locks*/ FALSE,
                       /*include_externals*/ FALSE, OnEntry, &listing, client.ClientContext(), pool);
  client.Run(error, listing.exception);
  std::sort(listing.names.begin(), listing.names.end());
  return listing.names;
}

/// nullopt on an error: the text comes from a user or a client.
template <class Convert>
std::optional<std::string> Canonical(const std::string& text, Convert convert) {
  const Pool pool;
  const char* result = nullptr;
  svn_error_t* error = convert(&result, text.c_str(), pool);
  svn_error_clear(error);
  if (error != SVN_NO_ERROR || result == nullptr) return std::nullopt;
  return result;
}

svn_error_t* UrlFromText(const char** url, const char* text, apr_pool_t* pool) {
  const char* escaped = svn_path_uri_autoescape(svn_path_uri_from_iri(text, pool), pool);
  return svn_uri_canonicalize_safe(url, nullptr, escaped, pool, pool);
}

svn_error_t* UrlFromFolder(const char** url, const char* text, apr_pool_t* pool) {
  return svn_uri_get_file_url_from_dirent(url, svn_dirent_internal_style(text, pool), pool);
}

svn_error_t* RelativeFromText(const char** path, const char* text, apr_pool_t* pool) {
  return svn_relpath_canonicalize_safe(path, nullptr, text, pool, pool);
}

svn_ra_session_t* OpenConnection(Client& client, const std::string& url, apr_pool_t* pool) {
  svn_ra_session_t* session = nullptr;
  try {
    client.Run(
        svn_client_open_ra_session2(&session, url.c_str(), nullptr, client.ClientContext(), pool, pool));
  } catch (const Failure& failure) {
    if (failure.Result() != scc::SCC_E_ACCESSFAILURE) throw;
    throw failure.With(Format(sNoRepositoryAt.Text, {ReadableUrl(url)}));
  }
  return session;
}

bool IsUsableUrl(const std::string& url) {
  if (url.ends_with("://") || !svn_path_is_url(url.c_str()) || svn_path_is_backpath_present(url.c_str()))
    return false;
  if (!url.starts_with("file:")) return true;
  const auto folder = Canonical(url, [](const char** path, const char* text, apr_pool_t* pool) {
    return svn_uri_get_dirent_from_file_url(path, text, pool);
  });
  return folder && svn_dirent_is_absolute(folder->c_str()) && !IsPerProcess(*folder);
}

}  // namespace

bool IsPerProcess(const std::string& path) {
  return std::any_of(kPerProcess.begin(), kPerProcess.end(),
                     [&](const char* folder) { return svn_dirent_is_ancestor(folder, path.c_str()); });
}

std::optional<std::string> ToRepositoryUrl(const std::string& text) {
  const Pool pool;
  const std::string trimmed = Trim(text);
  const bool isUrl = svn_path_is_url(trimmed.c_str());
  if (!isUrl && !svn_dirent_is_absolute(svn_dirent_internal_style(trimmed.c_str(), pool)))
    return std::nullopt;
  const auto url = isUrl ? Canonical(trimmed, UrlFromText) : Canonical(trimmed, UrlFromFolder);
  return url && IsUsableUrl(*url) ? url : std::nullopt;
}

std::optional<std::string> ToProjectPath(const std::string& text) {
  std::string path = Trim(text);
  path.erase(0, std::min(path.find_first_not_of('/'), path.size()));
  auto canonical = Canonical(path, RelativeFromText);
  if (!canonical || svn_path_is_backpath_present(canonical->c_str())) return std::nullopt;
  return canonical;
}

std::string ToProjectName(const std::string& path) { return path.empty() ? "/" : path; }

std::string UrlOf(const std::string& url, const std::string& path) {
  const Pool pool;
  return svn_path_url_add_component2(url.c_str(), path.c_str(), pool);
}

std::string ReadableUrl(const std::string& url) {
  const Pool pool;
  return svn_path_uri_decode(url.c_str(), pool);
}

RepositoryPlace PlaceOf(Client& client, const std::string& url) {
  const Pool pool;
  const char* root = nullptr;
  svn_ra_session_t* session = OpenConnection(client, url, pool);
  client.Run(svn_ra_get_repos_root2(session, &root, pool));
  return {root, svn_uri_skip_ancestor(root, url.c_str(), pool)};
}

RepositoryPlace PlaceOfWorkingCopy(Client& client, const std::string& folder) {
  const Pool pool;
  const char* root = nullptr;
  client.Run(svn_client_get_repos_root(&root, nullptr, folder.c_str(), client.ClientContext(), pool, pool));
  return {root, svn_uri_skip_ancestor(root, UrlOfWorkingCopy(client, folder).value_or(root).c_str(), pool)};
}

svn_node_kind_t KindOf(Client& client, const std::string& url) {
  const Pool pool;
  svn_ra_session_t* session = OpenConnection(client, url, pool);
  svn_node_kind_t kind = svn_node_none;
  client.Run(svn_ra_check_path(session, "", SVN_INVALID_REVNUM, &kind, pool));
  return kind;
}

std::vector<std::string> FoldersIn(Client& client, const std::string& url) {
  return List(client, url, svn_node_dir, svn_depth_immediates);
}

std::vector<std::string> FilesBelow(Client& client, const std::string& url) {
  if (KindOf(client, url) == svn_node_none) return {};
  return List(client, url, svn_node_file, svn_depth_infinity);
}

svn_revnum_t MakeFolder(Client& client, const std::string& url, const std::string& log) {
  const Pool pool;
  std::string warning;
  return client.Commit(log, warning, [&](svn_commit_callback2_t callback, void* baton) {
    return svn_client_mkdir4(ToArray({url}, pool), /*make_parents*/ TRUE, nullptr, callback, baton,
                             client.ClientContext(), pool);
  });
}

std::map<std::string, std::string> LockOwnersBelow(Client& client, const std::string& url) {
  const Pool pool;
  svn_ra_session_t* session = OpenConnection(client, url, pool);
  const char* inRepository = nullptr;
  client.Run(svn_ra_get_path_relative_to_root(session, &inRepository, url.c_str(), pool));
  apr_hash_t* locks = nullptr;
  client.Run(svn_ra_get_locks2(session, &locks, "", svn_depth_infinity, pool));

  std::map<std::string, std::string> owners;
  for (apr_hash_index_t* i = apr_hash_first(pool, locks); i != nullptr; i = apr_hash_next(i)) {
    const auto* lock = static_cast<const svn_lock_t*>(apr_hash_this_val(i));
    if (const char* inside = svn_relpath_skip_ancestor(inRepository, lock->path + 1))
      owners[inside] = lock->owner;
  }
  return owners;
}

std::string CreateRepository(const std::string& folder) {
  EnsureRuntime();
  const Pool pool;
  const char* path = svn_dirent_internal_style(folder.c_str(), pool);
  svn_repos_t* repository = nullptr;
  Check(svn_repos_create(&repository, path, nullptr, nullptr, nullptr, nullptr, pool));
  const char* url = nullptr;
  Check(svn_uri_get_file_url_from_dirent(&url, path, pool));
  return url;
}

std::optional<std::string> UrlOfWorkingCopy(Client& client, const std::string& folder) {
  const Pool pool;
  const char* url = nullptr;
  try {
    client.Run(svn_client_url_from_path2(&url, folder.c_str(), client.ClientContext(), pool, pool));
  } catch (const Failure& failure) {
    if (failure.MeansBusyWorkingCopy()) throw;  // a working copy that cannot be read now
  }
  return url != nullptr ? std::optional<std::string>(url) : std::nullopt;
}

}  // namespace kestrel::svnscc
