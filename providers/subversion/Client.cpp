#include "Client.h"

#include <apr_general.h>
#include <svn_cache_config.h>
#include <svn_cmdline.h>
#include <svn_config.h>
#include <svn_dso.h>
#include <svn_fs.h>
#include <svn_ra.h>
#include <svn_utf.h>

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <mutex>

#include "SubversionSccStrings.h"

namespace svnscc {
namespace {

std::atomic<bool> runtimeEnded = false;

/// Releases what Subversion keeps for the whole process, its cache first of all.
void EndRuntime() {
  runtimeEnded = true;
  apr_terminate();
}

void StartRuntime() {
  if (apr_initialize() != APR_SUCCESS) throw Failure(scc::SCC_E_INITIALIZEFAILED, sNoRuntime);
  std::atexit(EndRuntime);
  Check(svn_dso_initialize2());
  // A client in the C locale still means UTF-8, and must not be stopped by a broken promise inside Subversion.
  static const Pool forever;
  svn_utf_initialize2(TRUE, forever);
  svn_error_set_malfunction_handler(svn_error_raise_on_malfunction);
  // A local repository reads and parses the whole list of a folder for each entry it looks up, unless the list is in the
  // cache; and a list of thousands of entries only fits into one that is in a single piece.  That is for one thread at a
  // time: the provider does not claim to be re-entrant.
  svn_cache_config_t cache = *svn_cache_config_get();
  cache.single_threaded = TRUE;
  svn_cache_config_set(&cache);
  Check(svn_fs_initialize(nullptr));
  Check(svn_ra_initialize(forever));
}

/// A log message as Subversion takes it: lines end in LF.
std::string WithUnixLines(std::string text) {
  text.erase(std::remove(text.begin(), text.end(), '\r'), text.end());
  return text;
}

struct CommitAnswer {
  svn_revnum_t revision = SVN_INVALID_REVNUM;
  std::string warning;
  std::exception_ptr kept;
};

svn_error_t* TakeCommit(const svn_commit_info_t* info, void* baton, apr_pool_t*) noexcept {
  auto& answer = *static_cast<CommitAnswer*>(baton);
  return Contain(answer.kept, [&] {
    answer.revision = info->revision;
    if (info->post_commit_err != nullptr) answer.warning = info->post_commit_err;
  });
}

}  // namespace

bool HasRuntimeEnded() noexcept { return runtimeEnded; }

void EnsureRuntime() {
  static std::once_flag started;
  std::call_once(started, StartRuntime);
}

Client::Client(const std::string& user) : user_(user) {
  // Tests, and installations that keep their own settings, name the directory; nullptr is the user's own.
  const char* directory = std::getenv("SUBVERSION_SCC_CONFIG_DIR");
  apr_hash_t* config = nullptr;
  Check(svn_config_get_config(&config, directory, pool_));
  Check(svn_client_create_context2(&context_, config, pool_));
  auto* general =
      static_cast<svn_config_t*>(apr_hash_get(config, SVN_CONFIG_CATEGORY_CONFIG, APR_HASH_KEY_STRING));
  Check(svn_cmdline_create_auth_baton2(
      &context_->auth_baton, /*non_interactive*/ TRUE, user_.c_str(), nullptr, directory,
      /*no_auth_cache*/ TRUE, FALSE, FALSE, FALSE, FALSE, FALSE, general, nullptr, nullptr, pool_));
  context_->notify_func2 = Notify;
  context_->notify_baton2 = this;
  context_->log_msg_func3 = GiveLogMessage;
  context_->log_msg_baton3 = this;
  context_->cancel_func = CheckCancelled;
  context_->cancel_baton = this;
  context_->client_name = "SubversionScc";
}

void Client::Run(svn_error_t* error) { Check(error, std::exchange(kept_, nullptr)); }

svn_revnum_t Client::Commit(const std::string& log, std::string& warning,
                            const std::function<svn_error_t*(svn_commit_callback2_t, void*)>& commit) {
  log_ = WithUnixLines(log);
  CommitAnswer answer;
  svn_error_t* error = commit(TakeCommit, &answer);
  if (kept_ == nullptr) kept_ = answer.kept;
  Run(error);
  warning = answer.warning;
  return answer.revision;
}

void Client::Notify(void* baton, const svn_wc_notify_t* notice, apr_pool_t*) noexcept {
  auto& self = *static_cast<Client*>(baton);
  if (!self.notice_ || self.kept_ != nullptr) return;
  svn_error_clear(Contain(self.kept_, [&] { self.notice_(*notice); }));
}

svn_error_t* Client::GiveLogMessage(const char** message, const char** file, const apr_array_header_t*,
                                    void* baton, apr_pool_t* pool) noexcept {
  *message = apr_pstrdup(pool, static_cast<Client*>(baton)->log_.c_str());
  *file = nullptr;
  return SVN_NO_ERROR;
}

svn_error_t* Client::CheckCancelled(void* baton) noexcept {
  const auto& self = *static_cast<Client*>(baton);
  const bool stop = self.kept_ != nullptr || (self.poll_ && self.poll_());
  return stop ? svn_error_create(SVN_ERR_CANCELLED, nullptr, nullptr) : SVN_NO_ERROR;
}

}  // namespace svnscc
