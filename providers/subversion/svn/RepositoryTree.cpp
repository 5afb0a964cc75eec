#include "subversion/svn/RepositoryTree.h"

#include <algorithm>

#include "subversion/svn/Repository.h"
#include "subversion/svn/SvnStrings.h"
#include "system/Text.h"

namespace kestrel::svnscc {
namespace {

struct EntryReceiver {
  std::vector<TreeEntry> entries;
  std::exception_ptr exception;
};

svn_error_t* OnEntry(void* baton, const char* path, const svn_dirent_t* node, const svn_lock_t* lock,
                     const char*, const char*, const char*, apr_pool_t*) noexcept {
  auto& receiver = *static_cast<EntryReceiver*>(baton);
  if (*path == '\0') return SVN_NO_ERROR;  // the folder itself
  return RunInCallback(receiver.exception, [&] {
    receiver.entries.push_back({path, node->kind == svn_node_dir, node->size, node->created_rev,
                                node->last_author != nullptr ? node->last_author : "", node->time,
                                ToLockInfo(lock)});
  });
}

}  // namespace

std::string RepositoryTree::Open(const std::string& text) {
  client_.reset();
  entries_.clear();
  root_.clear();
  const auto url = ToRepositoryUrl(text);
  if (!url) throw Failure(scc::SCC_E_PROJSYNTAXERR, Format(sBadUrl.Text, {Trim(text)}));
  auto client = std::make_unique<Client>(user_);
  const RepositoryPlace place = PlaceOf(*client, *url);
  root_ = place.Root;
  client_ = std::move(client);
  return place.Path;
}

std::string RepositoryTree::UrlAt(const std::string& path) const { return UrlOf(root_, path); }

const std::vector<TreeEntry>& RepositoryTree::EntriesOf(const std::string& path) {
  const auto known = entries_.find(path);
  if (known != entries_.end()) return known->second;
  const Pool pool;
  const svn_opt_revision_t newest = Newest();
  EntryReceiver receiver;
  svn_error_t* error = svn_client_list4(
      UrlAt(path).c_str(), &newest, &newest, nullptr, svn_depth_immediates, SVN_DIRENT_ALL,
      /*fetch_locks*/ TRUE, /*include_externals*/ FALSE, OnEntry, &receiver, client_->ClientContext(), pool);
  client_->Run(error, receiver.exception);
  std::sort(receiver.entries.begin(), receiver.entries.end(), [](const TreeEntry& a, const TreeEntry& b) {
    return a.IsFolder != b.IsFolder ? a.IsFolder : a.Name < b.Name;
  });
  return entries_[path] = std::move(receiver.entries);
}

}  // namespace kestrel::svnscc
