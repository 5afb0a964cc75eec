#include "subversion/svn/Client.h"

#include <apr_general.h>
#include <svn_auth.h>
#include <svn_cache_config.h>
#include <svn_config.h>
#include <svn_dso.h>
#include <svn_fs.h>
#include <svn_ra.h>
#include <svn_utf.h>

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <mutex>

#include "subversion/svn/ConnectionWatch.h"
#include "subversion/svn/Login.h"
#include "subversion/svn/SvnStrings.h"

namespace kestrel::svnscc {
namespace {

constexpr int kLoginRetries = 2;

std::atomic<bool> runtimeEnded = false;

/// Releases Subversion's process-wide state, its cache in particular.
void EndRuntime() {
  runtimeEnded = true;
  apr_terminate();
}

void StartRuntime() {
  if (apr_initialize() != APR_SUCCESS) throw Failure(scc::SCC_E_INITIALIZEFAILED, sNoRuntime);
  std::atexit(EndRuntime);
  Check(svn_dso_initialize2());
  // A client in the C locale still passes UTF-8; a failed assertion inside Subversion must not abort the client.
  static const Pool forever;
  svn_utf_initialize2(TRUE, forever);
  svn_error_set_malfunction_handler(svn_error_raise_on_malfunction);
  // Without a cache, a local repository parses a whole directory for each entry it looks up.  A directory of thousands of
  // entries fits only into an unsegmented cache, which is single-threaded: the provider does not claim to be re-entrant.
  svn_cache_config_t cache = *svn_cache_config_get();
  cache.single_threaded = TRUE;
  svn_cache_config_set(&cache);
  Check(svn_fs_initialize(nullptr));
  Check(svn_ra_initialize(forever));
}

/// Subversion requires LF in log messages.
std::string WithUnixLines(std::string text) {
  text.erase(std::remove(text.begin(), text.end(), '\r'), text.end());
  return text;
}

svn_config_t* Category(apr_hash_t* config, const char* category) {
  return static_cast<svn_config_t*>(apr_hash_get(config, category, APR_HASH_KEY_STRING));
}

void SetDefault(svn_config_t* config, const char* section, const char* option, const std::string& value) {
  const char* set = nullptr;
  svn_config_get(config, &set, section, option, nullptr);
  if (set == nullptr) svn_config_set(config, section, option, value.c_str());
}

svn_opt_revision_t OfKind(svn_opt_revision_kind kind) {
  svn_opt_revision_t revision{};
  revision.kind = kind;
  return revision;
}

struct CommitAnswer {
  const std::function<void()>& committed;
  svn_revnum_t revision = SVN_INVALID_REVNUM;
  std::string warning;
  std::exception_ptr exception;
};

svn_error_t* OnCommit(const svn_commit_info_t* info, void* baton, apr_pool_t*) noexcept {
  auto& answer = *static_cast<CommitAnswer*>(baton);
  return RunInCallback(answer.exception, [&] {
    answer.revision = info->revision;
    if (answer.committed) answer.committed();
    if (info->post_commit_err != nullptr) answer.warning = info->post_commit_err;
  });
}

}  // namespace

svn_opt_revision_t Newest() { return OfKind(svn_opt_revision_head); }
svn_opt_revision_t Pristine() { return OfKind(svn_opt_revision_base); }
svn_opt_revision_t Numbered(svn_revnum_t number) {
  svn_opt_revision_t revision = OfKind(svn_opt_revision_number);
  revision.value.number = number;
  return revision;
}

bool HasRuntimeEnded() noexcept { return runtimeEnded; }

void EnsureRuntime() {
  static std::once_flag started;
  std::call_once(started, StartRuntime);
}

Client::Client(const std::string& user) : givenUser_(user), user_(user) {
  // Tests, and installations with settings of their own, set the directory; null means the user's own.
  const char* directory = std::getenv("SUBVERSION_SCC_CONFIG_DIR");
  apr_hash_t* config = nullptr;
  Check(svn_config_get_config(&config, directory, pool_));
  ApplyLimits(config);
  Check(svn_client_create_context2(&context_, config, pool_));
  context_->auth_baton = OpenAuthentication(config, directory);
  context_->notify_func2 = Notify;
  context_->notify_baton2 = this;
  context_->log_msg_func3 = GiveLogMessage;
  context_->log_msg_baton3 = this;
  context_->cancel_func = CheckCancelled;
  context_->cancel_baton = this;
  context_->client_name = "SubversionScc";
}

// http: libsvn has one limit of its own for connection and silence.  ssh: the program has its own, too.
void Client::ApplyLimits(apr_hash_t* config) {
  svn_config_t* general = Category(config, SVN_CONFIG_CATEGORY_CONFIG);
  limits_ = ReadLimits(general);
  ConnectionWatch::SetLimits(limits_);
  const std::string connect = std::to_string(limits_.Connect.count());
  const std::string silence = std::to_string(limits_.Silence.count());
  SetDefault(Category(config, SVN_CONFIG_CATEGORY_SERVERS), SVN_CONFIG_SECTION_GLOBAL,
             SVN_CONFIG_OPTION_HTTP_TIMEOUT, silence);
  SetDefault(general, SVN_CONFIG_SECTION_TUNNELS, "ssh",
             "$SVN_SSH ssh -q -o ConnectTimeout=" + connect + " -o ServerAliveInterval=" + silence +
                 " -o ServerAliveCountMax=1 --");
}

svn_auth_baton_t* Client::OpenAuthentication(apr_hash_t* config, const char* directory) {
  svn_config_t* general = Category(config, SVN_CONFIG_CATEGORY_CONFIG);
  apr_array_header_t* providers = nullptr;
  Check(svn_auth_get_platform_specific_client_providers(&providers, general, pool_));
  const auto add = [&](auto get, auto... arguments) {
    svn_auth_provider_object_t* provider = nullptr;
    get(&provider, arguments..., pool_);
    APR_ARRAY_PUSH(providers, svn_auth_provider_object_t*) = provider;
  };
  // Credentials that other Subversion clients stored come first, then the prompt.
  add(svn_auth_get_simple_provider2, nullptr, nullptr);
  add(svn_auth_get_username_provider);
  add(svn_auth_get_ssl_server_trust_file_provider);
  add(svn_auth_get_ssl_client_cert_file_provider);
  add(svn_auth_get_ssl_client_cert_pw_file_provider2, nullptr, nullptr);
  add(svn_auth_get_simple_prompt_provider, AskForLogin, static_cast<void*>(this), kLoginRetries);
  svn_auth_baton_t* baton = nullptr;
  svn_auth_open(&baton, providers, pool_);
  svn_auth_set_parameter(baton, SVN_AUTH_PARAM_DEFAULT_USERNAME,
                         user_.empty() ? nullptr : apr_pstrdup(pool_, user_.c_str()));
  svn_auth_set_parameter(baton, SVN_AUTH_PARAM_NO_AUTH_CACHE, "");
  if (directory != nullptr)
    svn_auth_set_parameter(baton, SVN_AUTH_PARAM_CONFIG_DIR, apr_pstrdup(pool_, directory));
  return baton;
}

svn_error_t* Client::AskForLogin(svn_auth_cred_simple_t** answer, void* baton, const char* realm, const char*,
                                 svn_boolean_t, apr_pool_t* pool) noexcept {
  auto& self = *static_cast<Client*>(baton);
  *answer = nullptr;
  return RunInCallback(self.callbackException_, [&] {
    const bool refused = !self.offered_.insert(realm).second;
    const auto login = FindLogin({realm, self.givenUser_, refused});
    if (!login) return;
    self.user_ = login->User;
    *answer = static_cast<svn_auth_cred_simple_t*>(apr_pcalloc(pool, sizeof **answer));
    (*answer)->username = apr_pstrdup(pool, login->User.c_str());
    (*answer)->password = apr_pstrdup(pool, login->Password.c_str());
  });
}

void Client::Run(svn_error_t* error, const std::exception_ptr& exception) {
  const auto earlier = std::exchange(callbackException_, nullptr);
  const auto gaveUp = ConnectionWatch::DrainReason();
  if (error != SVN_NO_ERROR && gaveUp) {
    svn_error_clear(error);
    const bool isSilent = *gaveUp == ConnectionWatch::Reason::Silent;
    throw Failure(scc::SCC_E_CONNECTIONFAILURE,
                  isSilent ? Format(sServerSilent.Text, {static_cast<long long>(limits_.Silence.count())})
                           : Format(sNoConnection.Text, {static_cast<long long>(limits_.Connect.count())}));
  }
  Check(error, exception ? exception : earlier);
}

svn_revnum_t Client::Commit(const std::string& log, std::string& warning,
                            const std::function<svn_error_t*(svn_commit_callback2_t, void*)>& commit) {
  log_ = WithUnixLines(log);
  CommitAnswer answer{.committed = committed_, .warning = {}, .exception = nullptr};
  svn_error_t* error = commit(OnCommit, &answer);
  try {
    Run(error, callbackException_ ? callbackException_ : answer.exception);
    warning = answer.warning;
  } catch (const Failure& failure) {
    if (!SVN_IS_VALID_REVNUM(answer.revision)) throw;
    warning = failure.what();
  }
  return answer.revision;
}

void Client::Notify(void* baton, const svn_wc_notify_t* notice, apr_pool_t*) noexcept {
  auto& self = *static_cast<Client*>(baton);
  if (!self.notice_ || self.callbackException_) return;
  svn_error_clear(RunInCallback(self.callbackException_, [&] { self.notice_(*notice); }));
}

svn_error_t* Client::GiveLogMessage(const char** message, const char** file, const apr_array_header_t*,
                                    void* baton, apr_pool_t* pool) noexcept {
  *message = apr_pstrdup(pool, static_cast<Client*>(baton)->log_.c_str());
  *file = nullptr;
  return SVN_NO_ERROR;
}

svn_error_t* Client::CheckCancelled(void* baton) noexcept {
  const auto& self = *static_cast<Client*>(baton);
  const bool stop = self.callbackException_ || (self.poll_ && self.poll_());
  return stop ? svn_error_create(SVN_ERR_CANCELLED, nullptr, nullptr) : SVN_NO_ERROR;
}

}  // namespace kestrel::svnscc
