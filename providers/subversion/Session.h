// One context of the API: who works, on which project, and where the sentences go.
#pragma once

#include <map>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "Client.h"
#include "CommandOptions.h"
#include "Output.h"
#include "Status.h"
#include "provider/sccdefs.h"

namespace svnscc {

/// A provider project: a folder of a repository and its local counterpart.  Texts as libsvn spells them.
struct Project {
  std::string Url;     // of the folder in the repository
  std::string Folder;  // absolute, without a trailing delimiter
};

/// The file names of one call; entries may be null.
using Names = std::span<const char* const>;

class Session {
 public:
  bool IsOpen() const { return client_ != nullptr; }
  /// Takes over a project that was opened.
  void Open(std::unique_ptr<Client> client, Project project);
  /// Starts libsvn anew for the same user and project: it has forgotten what it held open.
  void Reconnect();
  void Close();

  Client& Svn() const { return *client_; }
  svn_client_ctx_t* Context() const { return client_->Context(); }
  const Project& CurrentProject() const { return project_; }
  Output& Out() { return output_; }

  /// `name` as libsvn spells it; empty when it names nothing inside the project folder (the folder itself is inside).
  std::string InsidePath(const char* name) const;
  /// The path as the user knows it: relative to the project folder.
  std::string Label(const std::string& path) const;

  /// What the project's files were at the last status walk.
  StatusTable& LastStatuses() { return lastStatuses_; }

  /// What the client carries for the commands; outlives projects.
  OptionBlocks& Options() { return options_; }

  /// Errors that libsvn reported for single paths since the last call.
  std::map<std::string, Failure> TakeRefusals() { return std::exchange(refusals_, {}); }

 private:
  void HandleNotice(const svn_wc_notify_t& notice);

  Output output_;
  std::unique_ptr<Client> client_;
  Project project_;
  OptionBlocks options_;
  StatusTable lastStatuses_;
  std::map<std::string, Failure> refusals_;
};

/// The result of one command over several files: the last failure, or success.  Every failure is told to the user.
class Outcome {
 public:
  explicit Outcome(Session& session) : session_(session) {}
  void Fail(const std::string& path, const Failure& failure);
  void Fail(const std::string& path, scc::Long result, const char* reason);
  /// Runs one file's share of the work; false, with the failure noted, when it failed.
  template <class Body>
  bool Try(const std::string& path, Body&& body) {
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
  /// The names that lie inside the project, as paths; the others are failures.
  std::vector<std::string> PathsOf(Names names);
  scc::Long Result() const { return result_; }

 private:
  Session& session_;
  scc::Long result_ = scc::SCC_OK;
};

}  // namespace svnscc
