#include "subversion/svn/RecentAnswer.h"

#include <svn_dirent_uri.h>
#include <svn_io.h>
#include <svn_wc.h>

namespace kestrel::svnscc {

RemoteState::RemoteState(const svn_client_status_t& status)
    : node_(status.repos_node_status),
      text_(status.repos_text_status),
      properties_(status.repos_prop_status),
      kind_(status.ood_kind) {
  if (status.repos_lock == nullptr) return;
  token_ = status.repos_lock->token;
  owner_ = status.repos_lock->owner;
}

bool RemoteState::IsPlain() const {
  const auto isSame = [](svn_wc_status_kind kind) {
    return kind == svn_wc_status_none || kind == svn_wc_status_normal;
  };
  return isSame(node_) && isSame(text_) && isSame(properties_) && token_.empty();
}

void RemoteState::ApplyTo(svn_client_status_t& status) {
  status.repos_node_status = node_;
  status.repos_text_status = text_;
  status.repos_prop_status = properties_;
  status.ood_kind = kind_;
  lock_.token = token_.c_str();
  lock_.owner = owner_.c_str();
  status.repos_lock = token_.empty() ? nullptr : &lock_;
}

RecentAnswer::RecentAnswer(const std::string& root, std::chrono::milliseconds lifetime)
    : lifetime_(lifetime) {
  const Pool pool;
  database_ = svn_dirent_join_many(pool, root.c_str(), svn_wc_get_adm_dir(pool), "wc.db", nullptr);
}

RecentAnswer::Stamp RecentAnswer::StampNow() const {
  const Pool pool;
  apr_finfo_t file{};
  svn_error_t* error = svn_io_stat(&file, database_.c_str(), APR_FINFO_MTIME | APR_FINFO_SIZE, pool);
  svn_error_clear(error);
  return error == SVN_NO_ERROR ? Stamp{file.mtime, file.size} : Stamp{};
}

void RecentAnswer::Store(RepositoryAnswer answer, const Stamp& stamp) {
  answer_ = std::move(answer);
  stamp_ = stamp;
  end_ = std::chrono::steady_clock::now() + lifetime_;
}

RepositoryAnswer* RecentAnswer::Find() {
  if (answer_ && (std::chrono::steady_clock::now() >= end_ || StampNow() != stamp_)) answer_.reset();
  return answer_ ? &*answer_ : nullptr;
}

}  // namespace kestrel::svnscc
