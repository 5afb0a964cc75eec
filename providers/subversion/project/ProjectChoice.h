// The model of the dialog for choosing a project: connection, choice, validation.
#pragma once

#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "subversion/project/ProjectPrompt.h"
#include "subversion/svn/Client.h"

namespace kestrel::svnscc {

class ProjectChoice {
 public:
  explicit ProjectChoice(const ProjectRequest& request);

  // Each of the following sets Message() to an error or to the next step.
  void SetUser(const std::string& user);
  /// Connects to the repository at or above the address `text`, and selects the folder that `text` names.  On failure returns
  /// false and is not connected.
  bool Connect(const std::string& text);
  /// Creates an empty repository in a folder that is missing or empty, and connects to it.
  bool CreateRepository(const std::string& folder);
  /// Plans a new folder, which opening the project creates.  Returns its path, or nullopt if the name is not usable.
  std::optional<std::string> AddFolder(const std::string& parent, const std::string& name);
  /// Names of the folders in `path` including planned ones, sorted.
  std::vector<std::string> FoldersOf(const std::string& path);
  /// `path` is empty for the root; nullopt clears the selection.
  void Select(std::optional<std::string> path);

  bool IsConnected() const { return client_ != nullptr; }
  bool MayCreate() const { return request_.MayCreate; }
  const std::string& Root() const { return root_; }
  const std::string& LocalFolder() const { return request_.LocalFolder; }
  const std::string& User() const { return request_.User; }
  const std::optional<std::string>& Selected() const { return selected_; }
  bool CanAccept() const { return Problem().empty(); }
  const std::string& Message() const { return message_; }
  bool IsError() const { return isError_; }

  /// The initial address.
  std::string ProposedRepository() const;
  /// Whether the dialog connects to the initial address when it opens.
  bool ShouldConnectAtOnce() const;
  std::string ProposedFolderName() const;
  /// The choice.  Requires CanAccept().
  ProjectRequest Result() const;

 private:
  std::string Problem() const;
  /// The client, re-created after the user name has changed.
  Client& Svn();
  void SetMessage(const std::string& text, bool isError);
  void ShowNextStep();
  bool Refuse(const std::string& text);
  void PreselectProject(const std::string& path);

  ProjectRequest request_;
  std::string proposed_;
  bool knowsProposed_ = false;  // the user has used its repository before
  std::unique_ptr<Client> client_;
  std::string root_;
  std::set<std::string> planned_;
  std::optional<std::string> selected_;
  std::string message_;
  bool isError_ = false;
};

}  // namespace kestrel::svnscc
