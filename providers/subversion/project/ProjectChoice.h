// The dialog for choosing a project, without its window: what is connected, what is chosen, whether that will do.
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

  // Each of the following leaves a sentence in Message(): what went wrong, or what comes next.
  void SetUser(const std::string& user);
  /// Opens the repository that `text` names, and chooses the folder if it names one.  False leaves nothing connected.
  bool Connect(const std::string& text);
  /// Makes an empty repository in a folder that is missing or empty, and connects to it.
  bool CreateRepository(const std::string& folder);
  /// Plans a new folder, which is made when the project is opened.  Returns its path.
  std::optional<std::string> AddFolder(const std::string& parent, const std::string& name);
  /// Names of the folders in `path`, planned ones included, sorted.
  std::vector<std::string> FoldersOf(const std::string& path);
  /// `path` is empty for the root; nullopt chooses nothing.
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

  /// What the repository line proposes at first.
  std::string ProposedRepository() const;
  /// Whether the proposal should be opened without being asked for.
  bool ShouldConnectAtOnce() const;
  std::string ProposedFolderName() const;
  /// The choice.  CanAccept() only.
  ProjectRequest Result() const;

 private:
  std::string Problem() const;
  /// The connection, for the user as it is named now.
  Client& Svn();
  void Tell(const std::string& text, bool isError);
  void ShowNextStep();
  bool Refuse(const std::string& text);
  void PreselectProject(const std::string& path);

  ProjectRequest request_;
  std::string proposed_;
  bool knowsProposed_ = false;  // the user agreed to its repository before
  std::unique_ptr<Client> client_;
  std::string root_;
  std::set<std::string> planned_;
  std::optional<std::string> selected_;
  std::string message_;
  bool isError_ = false;
};

}  // namespace kestrel::svnscc
