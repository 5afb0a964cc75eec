// libsvn_client set up for one user: configuration, login, notices and log message.
#pragma once

#include <svn_client.h>

#include <exception>
#include <functional>
#include <set>
#include <string>

#include "subversion/svn/SvnHandles.h"

namespace kestrel::svnscc {

/// Readies APR and Subversion for this process, once; later calls do nothing.  They last until the process ends: see
/// nodelete in CMakeLists.txt.  Throws Failure.
void EnsureRuntime();

/// Not movable: libsvn keeps its address.
class Client {
 public:
  using NoticeHandler = std::function<void(const svn_wc_notify_t&)>;

  /// `user` names whoever commits and locks.  A server that wants a password gets what the user answers to the login
  /// prompt (Login.h); nothing is stored on disk.
  explicit Client(const std::string& user);
  Client(const Client&) = delete;
  Client& operator=(const Client&) = delete;

  svn_client_ctx_t* ClientContext() const { return context_; }
  /// Who works: `user`, or whoever logged in instead.
  const std::string& User() const { return user_; }
  /// What libsvn reports while it works.  An exception of the handler ends the call in progress.
  void OnNotice(NoticeHandler handler) { notice_ = std::move(handler); }

  /// Called when the server has taken a commit: there is no way back from then on.  Must not throw.
  void OnCommitted(std::function<void()> committed) { committed_ = std::move(committed); }
  /// Asked while libsvn works: true stops it.  Must not throw.
  void OnPoll(std::function<bool()> poll) { poll_ = std::move(poll); }

  /// Throws what `error` or a callback's exception says.  Every call that uses Context() goes through here.
  void Run(svn_error_t* error);
  /// Commits what `commit(callback, baton)` commits, with `log` as its message; the revision it made, or
  /// SVN_INVALID_REVNUM when there was nothing to do.  `warning` receives what went wrong afterwards: what a server's hook
  /// said, or what the working copy could not note.
  svn_revnum_t Commit(const std::string& log, std::string& warning,
                      const std::function<svn_error_t*(svn_commit_callback2_t, void*)>& commit);

 private:
  static void Notify(void* baton, const svn_wc_notify_t* notice, apr_pool_t* pool) noexcept;
  static svn_error_t* GiveLogMessage(const char** message, const char** file, const apr_array_header_t* items,
                                     void* baton, apr_pool_t* pool) noexcept;
  static svn_error_t* CheckCancelled(void* baton) noexcept;

  svn_auth_baton_t* OpenAuthentication(apr_hash_t* config, const char* directory);
  static svn_error_t* AskForLogin(svn_auth_cred_simple_t** answer, void* baton, const char* realm,
                                  const char* user, svn_boolean_t maySave, apr_pool_t* pool) noexcept;

  Pool pool_;
  const std::string givenUser_;
  std::string user_;
  svn_client_ctx_t* context_ = nullptr;
  NoticeHandler notice_;
  std::function<bool()> poll_;
  std::function<void()> committed_;
  std::string log_;
  std::set<std::string> offered_;         // realms that a login was offered for
  std::exception_ptr callbackException_;  // of a callback, rethrown by Run
};

}  // namespace kestrel::svnscc
