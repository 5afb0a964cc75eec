// One context of the API: who works, on which project, and where the sentences go.
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
#include "subversion/svn/Status.h"
#include "subversion/svn/WorkingCopyUse.h"

namespace kestrel::svnscc {

/// A provider project: a folder of a repository and its local counterpart.  Texts as libsvn spells them.
struct Project {
  std::string Url;     // of the folder in the repository
  std::string Folder;  // absolute, without a trailing delimiter
};

/// A path as the operating system and clients spell it.
std::string NativeName(const std::string& path);

/// The file names of one call; entries may be null.
using Names = std::span<const char* const>;

/// Names as the API hands them out.
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
  /// Takes over a project that was opened.
  void Open(std::unique_ptr<Client> client, Project project);
  /// Starts libsvn anew for the same user and project: it has forgotten what it held open.
  void Reconnect();
  void Close();

  Client& Svn() const { return *client_; }
  svn_client_ctx_t* ClientContext() const { return client_->ClientContext(); }
  const Project& CurrentProject() const { return project_; }
  Output& Out() { return output_; }
  /// Of the working copy that the project lies in.
  const UseMarker& Mark() const { return mark_; }
  LockJournal& Journal() { return journal_; }

  /// `name` as libsvn spells it; empty when it names nothing inside the project folder (the folder itself is inside).
  std::string InsidePath(const char* name) const;
  /// The path as the user knows it: relative to the project folder.
  std::string Label(const std::string& path) const;

  /// What the project's files were at the last status walk.
  StatusTable& LastStatuses() { return lastStatuses_; }

  /// Files that were added since the project was opened, and in which revision.
  std::map<std::string, svn_revnum_t>& JustAdded() { return justAdded_; }

  /// What the client carries for the commands; outlives projects.
  OptionBlocks& Options() { return options_; }

  /// Tells the user, once for each, of files that Subversion cannot name.
  void ReportNonUtf8Names(const std::vector<std::string>& paths);
  /// Tells the user who took the locks that an update found gone.
  void ReportLostLocks();

  /// Status changes for the client.
  EventQueue& Events() { return events_; }
  /// Names that the client holds until it asks for others, or gives them back.
  NameArray& Handed() { return handed_; }
  /// What the client announced through SccSetOption.
  bool ClientCancels = false;      // it shows a Cancel button, and wants status messages
  bool SharesSubprojects = false;  // it names a destination to SccAddFromScc

  /// Errors that libsvn reported for single paths since the last call.
  std::map<std::string, Failure> DrainRefusals() { return std::exchange(refusals_, {}); }

  /// While a command runs the client shows its Cancel button; nothing happens when it has none.
  void BeginCommand();
  void EndCommand();
  /// Throws the Failure that ends a cancelled command.
  void StopIfCancelled();

 private:
  void HandleNotice(const svn_wc_notify_t& notice);
  /// Whether the user has just cancelled.  True once: what libsvn does to clean up must not be stopped.
  bool IsCancelled();

  Output output_;
  std::unique_ptr<Client> client_;
  Project project_;
  UseMarker mark_;
  LockJournal journal_;
  OptionBlocks options_;
  EventQueue events_;
  NameArray handed_;
  bool canCancel_ = false;  // a command runs, and was not cancelled
  std::chrono::steady_clock::time_point nextPoll_;
  StatusTable lastStatuses_;
  std::map<std::string, svn_revnum_t> justAdded_;
  std::map<std::string, Failure> refusals_;
  std::set<std::string> leftOut_;
  std::vector<std::string> lostLocks_;
};

/// The result of one command over several files: the last failure, or success.  Every failure is told to the user.
class Outcome {
 public:
  explicit Outcome(ProviderContext& context) : context_(context) {}
  void Fail(const std::string& path, const Failure& failure);
  void Fail(const std::string& path, scc::Long result, const char* reason);
  /// Runs one file's share of the work; false, with the failure noted, when it failed.
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
  /// The names that lie inside the project, as paths, each once; the others are failures.
  std::vector<std::string> PathsOf(Names names);
  scc::Long Result() const { return result_; }

 private:
  ProviderContext& context_;
  scc::Long result_ = scc::SCC_OK;
};

}  // namespace kestrel::svnscc
