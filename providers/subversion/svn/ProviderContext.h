// The state behind one context of the SCC API: the user, the open project, the client's callbacks.
#pragma once

#include <chrono>
#include <map>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "scc/sccdefs.h"
#include "subversion/svn/Client.h"
#include "subversion/svn/CommandOptions.h"
#include "subversion/svn/Events.h"
#include "subversion/svn/Output.h"
#include "subversion/svn/RecentAnswer.h"
#include "subversion/svn/Status.h"
#include "subversion/svn/WorkingCopyUse.h"

namespace kestrel::svnscc {

/// A provider project: a folder of a repository and its local folder.  Canonical in the sense of libsvn.
struct Project {
  std::string Url;     // of the folder in the repository
  std::string Folder;  // absolute, without a trailing delimiter
};

/// A canonical path in the operating system's spelling.
std::string NativeName(const std::string& path);

/// The file names of one call; entries may be null.
using Names = std::span<const char* const>;

/// File names as an array of C strings, as the API returns them.
class NameArray {
 public:
  void Assign(std::vector<std::string> names);
  const char** Data() { return pointers_.data(); }
  std::size_t Count() const { return names_.size(); }

 private:
  std::vector<std::string> names_;
  std::vector<const char*> pointers_;
};

class ProviderContext {
 public:
  bool IsOpen() const { return client_ != nullptr; }
  /// Stores an opened project and its client.
  void Open(std::unique_ptr<Client> client, Project project);
  /// Replaces the client by a new one for the same user and project: libsvn drops what it had open.
  void Reconnect();
  void Close();

  Client& Svn() const { return *client_; }
  svn_client_ctx_t* ClientContext() const { return client_->ClientContext(); }
  const Project& CurrentProject() const { return project_; }
  Output& Out() { return output_; }
  /// Marks the working copy that contains the project as in use.
  const UseMarker& Mark() const { return mark_; }
  LockJournal& Journal() { return journal_; }

  /// Canonicalises `name`; empty if it is not inside the project folder (the folder itself is inside).
  std::string InsidePath(const char* name) const;
  /// The path for display: relative to the project folder.
  std::string Label(const std::string& path) const;

  /// The result of the last WalkProject().
  StatusTable& LastStatuses() { return lastStatuses_; }
  /// What the repository answered to it.
  RecentAnswer& Recent() { return recent_; }

  /// Files added since the project was opened, with the revision that added them.
  std::map<std::string, svn_revnum_t>& JustAdded() { return justAdded_; }

  /// The option blocks of the client; they outlive projects.
  OptionBlocks& Options() { return options_; }

  /// Warns, once per path, about names that are not UTF-8.
  void ReportNonUtf8Names(const std::vector<std::string>& paths);
  /// Warns about the locks that an update found broken.
  void ReportLostLocks();

  /// Status changes for the client.
  EventQueue& Events() { return events_; }
  /// Names that SccAddFromScc returned; the client uses them until its next call of it.
  NameArray& ReturnedNames() { return returnedNames_; }
  // Set by the client through SccSetOption.
  bool ClientCancels = false;      // it shows a Cancel button, and wants status messages
  bool SharesSubprojects = false;  // it names a destination to SccAddFromScc

  /// Returns and clears the errors that libsvn reported for single paths.
  std::map<std::string, Failure> DrainRefusals() { return std::exchange(refusals_, {}); }

  /// Make the client show and hide its Cancel button, if it has one.
  void BeginCommand();
  void EndCommand();
  /// Throws Failure (SCC_I_OPERATIONCANCELED) if the user has cancelled.
  void StopIfCancelled();

 private:
  void HandleNotice(const svn_wc_notify_t& notice);
  /// Polls the client.  Returns true only once: cancelling must not stop libsvn's cleanup.
  bool IsCancelled();

  Output output_;
  std::unique_ptr<Client> client_;
  Project project_;
  UseMarker mark_;
  LockJournal journal_;
  OptionBlocks options_;
  EventQueue events_;
  NameArray returnedNames_;
  bool canCancel_ = false;  // a command runs and was not cancelled
  std::chrono::steady_clock::time_point nextPoll_;
  StatusTable lastStatuses_;
  RecentAnswer recent_;
  std::map<std::string, svn_revnum_t> justAdded_;
  std::map<std::string, Failure> refusals_;
  std::set<std::string> leftOut_;
  std::vector<std::string> lostLocks_;
};

/// The result of one command over several files: that of the last failure, else SCC_OK.  Reports every failure.
class Outcome {
 public:
  explicit Outcome(ProviderContext& context) : context_(context) {}
  void Fail(const std::string& path, const Failure& failure);
  void Fail(const std::string& path, scc::Long result, const char* reason);
  /// Runs `body` for one file.  Records and reports a failure and returns false.
  template <class Body>
  bool Try(const std::string& path, Body&& body) {
    context_.StopIfCancelled();
    try {
      body();
      return true;
    } catch (const Failure& failure) {
      Fail(path, failure);
    } catch (const std::exception& exception) {
      Fail(path, scc::SCC_E_NONSPECIFICERROR, exception.what());
    }
    return false;
  }
  /// Resolves the names inside the project, without duplicates; records a failure for each of the others.
  std::vector<std::string> PathsOf(Names names);
  scc::Long Result() const { return result_; }

 private:
  ProviderContext& context_;
  scc::Long result_ = scc::SCC_OK;
};

}  // namespace kestrel::svnscc
