#include "subversion/project/ProjectChoice.h"

#include <algorithm>
#include <filesystem>

#include "common/text/RepositoryPath.h"
#include "subversion/project/OpenProject.h"
#include "subversion/project/ProjectStrings.h"
#include "subversion/project/RecentRepositories.h"
#include "subversion/project/UsedRepositories.h"
#include "subversion/svn/Repository.h"
#include "subversion/svn/SvnStrings.h"
#include "system/Paths.h"
#include "system/System.h"

namespace kestrel::svnscc {
namespace {

// Limits of clients: some store shorter project names than the API allows.
constexpr std::size_t kLongestProjectName = 260;
constexpr std::size_t kLongestRepository = scc::SCC_PRJPATH_SIZE - 1;
constexpr std::size_t kLongestUser = scc::SCC_USER_SIZE - 1;

bool IsFolderName(const std::string& name) {
  return !name.empty() && name != "." && name != ".." && name.find('/') == std::string::npos;
}

/// Where the working copy in `folder` belongs; empty if there is none.
RepositoryPlace WorkingCopyPlace(const std::string& user, const std::string& folder) {
  const std::string path = ExcludeTrailingPathDelimiter(folder);
  Client client(user);
  if (!IsAbsolutePath(folder) || !UrlOfWorkingCopy(client, path)) return {};
  return PlaceOfWorkingCopy(client, path);
}

std::string TooLong(const TResString& text, std::size_t most) {
  return Format(text.Text, {static_cast<long long>(most)});
}

}  // namespace

ProjectChoice::ProjectChoice(const ProjectRequest& request) : request_(request) {
  EnsureRuntime();
  if (request_.User.empty()) request_.User = SystemUser();
  proposed_ = request_.Repository;
  std::string root = proposed_;
  if (proposed_.empty()) {
    const RepositoryPlace place = WorkingCopyPlace(request_.User, request_.LocalFolder);
    root = place.Root;
    proposed_ = root.empty() ? root : UrlOf(root, place.Path);
  }
  knowsProposed_ = IsUsed(ToRepositoryUrl(root).value_or(""));
  ShowNextStep();
}

std::string ProjectChoice::ProposedRepository() const {
  if (!proposed_.empty()) return ReadableUrl(proposed_);
  const auto recent = RecentRepositories();
  return recent.empty() ? "" : recent.front();
}

bool ProjectChoice::ShouldConnectAtOnce() const {
  // The project may come from somebody else: connect only to a repository used before.  Do not make the user wait for a
  // recent server either, which may be out of reach.
  return !proposed_.empty() ? knowsProposed_ : ProposedRepository().starts_with("file://");
}

std::string ProjectChoice::ProposedFolderName() const {
  const auto path = ToProjectPath(request_.ProjectName);
  if (path && !path->empty()) return path->substr(path->rfind('/') + 1);
  return ExtractFileName(ExcludeTrailingPathDelimiter(request_.LocalFolder));
}

void ProjectChoice::SetUser(const std::string& user) {
  request_.User = Trim(user);
  ShowNextStep();
}

Client& ProjectChoice::Svn() {
  if (client_->User() != request_.User) client_ = std::make_unique<Client>(request_.User);
  return *client_;
}

bool ProjectChoice::Connect(const std::string& text) {
  client_.reset();
  root_.clear();
  planned_.clear();
  selected_.reset();
  const auto url = ToRepositoryUrl(text);
  if (!url) return Refuse(Format(sBadUrl.Text, {Trim(text)}));
  try {
    auto client = std::make_unique<Client>(request_.User);
    const RepositoryPlace place = PlaceOf(*client, *url);
    root_ = place.Root;
    client_ = std::move(client);
    PreselectProject(place.Path);
    RememberRepository(ReadableUrl(root_));
  } catch (const Failure& failure) {
    return Refuse(AsSentence(failure.what()));
  }
  ShowNextStep();
  return true;
}

// The folder of the address if it has one; else the client's project.
void ProjectChoice::PreselectProject(const std::string& path) {
  const std::string wanted = !path.empty() ? path : ToProjectPath(request_.ProjectName).value_or("");
  if (KindOf(Svn(), UrlOf(root_, wanted)) == svn_node_dir) selected_ = wanted;
}

bool ProjectChoice::CreateRepository(const std::string& folder) {
  std::error_code error;
  const bool missing = !std::filesystem::exists(folder, error);
  if (!missing && !std::filesystem::is_empty(folder, error))
    return Refuse(Format(sFolderNotEmpty.Text, {folder}));
  try {
    if (!Connect(svnscc::CreateRepository(folder))) return false;
  } catch (const Failure& failure) {
    return Refuse(AsSentence(failure.what()));
  }
  SetMessage(sRepositoryMade, false);
  return true;
}

std::optional<std::string> ProjectChoice::AddFolder(const std::string& parent, const std::string& name) {
  const std::string trimmed = Trim(name);
  if (!IsFolderName(trimmed)) {
    Refuse(Format(sBadFolderName.Text, {trimmed}));
    return std::nullopt;
  }
  const auto siblings = FoldersOf(parent);
  if (std::find(siblings.begin(), siblings.end(), trimmed) != siblings.end()) {
    Refuse(Format(sFolderExists.Text, {trimmed}));
    return std::nullopt;
  }
  std::string path = PathBelow(parent, trimmed);
  planned_.insert(path);
  ShowNextStep();
  return path;
}

std::vector<std::string> ProjectChoice::FoldersOf(const std::string& path) {
  std::vector<std::string> names;
  if (client_ == nullptr) return names;
  try {
    if (!planned_.contains(path)) names = FoldersIn(Svn(), UrlOf(root_, path));
  } catch (const Failure& failure) {
    Refuse(AsSentence(failure.what()));
  }
  for (const auto& folder : planned_)
    if (PathAbove(folder) == path) names.push_back(folder.substr(path.empty() ? 0 : path.size() + 1));
  std::sort(names.begin(), names.end());
  return names;
}

void ProjectChoice::Select(std::optional<std::string> path) {
  selected_ = std::move(path);
  ShowNextStep();
}

std::string ProjectChoice::Problem() const {
  if (request_.User.empty()) return sNoUser;
  if (request_.User.size() > kLongestUser) return TooLong(sUserTooLong, kLongestUser);
  if (client_ == nullptr) return sNotConnected;
  if (root_.size() > kLongestRepository) return TooLong(sTooLong, kLongestRepository);
  if (!selected_) return sChooseFolder;
  if (selected_->size() > kLongestProjectName) return TooLong(sTooLong, kLongestProjectName);
  return {};
}

ProjectRequest ProjectChoice::Result() const {
  ProjectRequest result = request_;
  result.Repository = root_;
  result.ProjectName = ToProjectName(selected_.value_or(""));
  result.IsNew = selected_ && planned_.contains(*selected_);
  return result;
}

void ProjectChoice::SetMessage(const std::string& text, bool isError) {
  message_ = text;
  isError_ = isError;
}

bool ProjectChoice::Refuse(const std::string& text) {
  SetMessage(text, true);
  return false;
}

void ProjectChoice::ShowNextStep() {
  const std::string problem = Problem();
  if (!problem.empty() || !selected_) return SetMessage(problem, false);
  const std::string url = ReadableUrl(UrlOf(root_, *selected_));
  SetMessage(planned_.contains(*selected_) ? Format(sWillCreate.Text, {url}) : Format(sWillUse.Text, {url}),
             false);
}

}  // namespace kestrel::svnscc
