// libsvn_client set up for one user: configuration, authentication, notifications and log messages.
#pragma once

#include <svn_client.h>

#include <exception>
#include <functional>
#include <set>
#include <string>

#include "subversion/svn/Limits.h"
#include "subversion/svn/SvnHandles.h"

namespace kestrel::svnscc {

/// Initialises APR and Subversion; later calls do nothing.  Both stay until the process ends (see nodelete in
/// CMakeLists.txt).  Throws Failure.
void EnsureRuntime();

// Revisions; svn_opt_revision_t{} is unspecified.
svn_opt_revision_t Newest();
/// The working copy's base, without local changes.  Local paths only; contacts no repository.
svn_opt_revision_t Pristine();
svn_opt_revision_t Numbered(svn_revnum_t revision);

/// Neither copyable nor movable: libsvn keeps its address.
class Client {
 public:
  using NoticeHandler = std::function<void(const svn_wc_notify_t&)>;

  /// `user` commits and locks.  If a server wants a password, the login prompt (Login.h) asks for it; nothing is stored
  /// on disk.
  explicit Client(const std::string& user);
  Client(const Client&) = delete;
  Client& operator=(const Client&) = delete;

  svn_client_ctx_t* ClientContext() const { return context_; }
  /// The user who last logged in, else the one given to the constructor.
  const std::string& User() const { return user_; }
  const Limits& TimeLimits() const { return limits_; }
  /// Sets the handler of libsvn's notifications.  An exception it throws ends the call in progress.
  void OnNotice(NoticeHandler handler) { notice_ = std::move(handler); }

  /// Sets the function called when the server has accepted a commit, which cannot be cancelled any more.  Must not throw.
  void OnCommitted(std::function<void()> committed) { committed_ = std::move(committed); }
  /// Sets the function polled while libsvn works: it returns true to cancel.  Must not throw.
  void OnPoll(std::function<bool()> poll) { poll_ = std::move(poll); }

  /// Throws the exception of a callback, else the Failure of `error`.  Every call that uses ClientContext() passes its
  /// result here.  A connection that was given up is a Failure of its own.  `exception` is that of the call's own callbacks (see RunInCallback).
  void Run(svn_error_t* error, const std::exception_ptr& exception = nullptr);
  /// Runs `commit(callback, baton)` with `log` as the log message.  Returns the new revision, or SVN_INVALID_REVNUM if
  /// there was nothing to commit.  `warning` receives what failed after the commit: the output of a post-commit hook, or
  /// an error of the working copy.
  svn_revnum_t Commit(const std::string& log, std::string& warning,
                      const std::function<svn_error_t*(svn_commit_callback2_t, void*)>& commit);

 private:
  static void Notify(void* baton, const svn_wc_notify_t* notice, apr_pool_t* pool) noexcept;
  static svn_error_t* GiveLogMessage(const char** message, const char** file, const apr_array_header_t* items,
                                     void* baton, apr_pool_t* pool) noexcept;
  static svn_error_t* CheckCancelled(void* baton) noexcept;

  /// Applies the limits of this provider where the user's configuration has none.
  void ApplyLimits(apr_hash_t* config);
  svn_auth_baton_t* OpenAuthentication(apr_hash_t* config, const char* directory);
  static svn_error_t* AskForLogin(svn_auth_cred_simple_t** answer, void* baton, const char* realm,
                                  const char* user, svn_boolean_t maySave, apr_pool_t* pool) noexcept;

  Pool pool_;
  const std::string givenUser_;
  std::string user_;
  Limits limits_;
  svn_client_ctx_t* context_ = nullptr;
  NoticeHandler notice_;
  std::function<bool()> poll_;
  std::function<void()> committed_;
  std::string log_;
  std::set<std::string> offered_;         // realms that already got a login
  std::exception_ptr callbackException_;  // rethrown by Run
};

}  // namespace kestrel::svnscc
