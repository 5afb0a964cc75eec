#include "subversion/project/OpenProject.h"

#include <svn_dirent_uri.h>

#include <filesystem>

#include "subversion/project/ProjectConsent.h"
#include "subversion/project/ProjectStrings.h"
#include "subversion/svn/LocalStatus.h"
#include "subversion/svn/Repository.h"
#include "subversion/svn/SvnStrings.h"
#include "subversion/svn/WorkingCopyLocks.h"
#include "system/System.h"

namespace kestrel::svnscc {
namespace {

std::string LocalFolderOf(const std::string& text) {
  const Pool pool;
  const char* path = svn_dirent_internal_style(text.c_str(), pool);
  const char* absolute = nullptr;
  if (svn_dirent_is_absolute(path)) Check(svn_dirent_get_absolute(&absolute, path, pool));
  if (absolute == nullptr || IsPerProcess(absolute))
    throw Failure(scc::SCC_E_INVALIDFILEPATH, Format(sNoLocalFolder.Text, {text}));
  return absolute;
}

/// A client may leave both names empty.
void FillNamesFromWorkingCopy(Client& client, const std::string& folder, ProjectNames& names) {
  if (!UrlOfWorkingCopy(client, folder)) throw Failure(scc::SCC_E_UNKNOWNPROJECT, sNoProjectNamed);
  const RepositoryPlace place = PlaceOfWorkingCopy(client, folder);
  names.Repository = place.Root;
  names.ProjectName = ToProjectName(place.Path);
}

void CreateProject(ProviderContext& context, Client& client, const std::string& url,
                   const ProjectNames& names) {
  try {
    const std::string log = names.Comment.empty() ? std::string(sCreateProjectLog) : names.Comment;
    const svn_revnum_t revision = MakeFolder(client, url, log);
    context.Out().Info(Format(sProjectCreated.Text, {ReadableUrl(url)}));
    context.Out().Info(Format(sCommitted.Text, {static_cast<long long>(revision)}));
  } catch (const Failure& failure) {
    const bool refused =
        failure.Result() == scc::SCC_E_INVALIDUSER || failure.Result() == scc::SCC_E_NOTAUTHORIZED;
    throw Failure(refused ? failure.Result() : static_cast<scc::Long>(scc::SCC_E_COULDNOTCREATEPROJECT),
                  Format(sCouldNotCreate.Text, {names.ProjectName, failure.what()}));
  }
}

void RequireProject(ProviderContext& context, Client& client, const std::string& root, const Project& project,
                    const ProjectNames& names, const OpenMode& mode) {
  switch (KindOf(client, project.Url)) {
    case svn_node_dir:
      return;
    case svn_node_none:
      if (mode.MayCreate) {
        RequireFolderConsent(root, project, names, mode);
        return CreateProject(context, client, project.Url, names);
      }
      throw Failure(scc::SCC_E_UNKNOWNPROJECT,
                    Format(sUnknownProject.Text, {names.Repository, names.ProjectName}));
    default:
      throw Failure(scc::SCC_E_PROJSYNTAXERR,
                    Format(sProjectIsFile.Text, {names.ProjectName, names.Repository}));
  }
}

/// Whether `project.Folder` is a working copy of the project; throws Failure if it is one of another URL.
bool IsWorkingCopyOf(Client& client, const Project& project) {
  const auto url = UrlOfWorkingCopy(client, project.Folder);
  if (!url) return false;
  if (*url == project.Url) return true;
  throw Failure(scc::SCC_E_INVALIDFILEPATH, Format(sOtherWorkingCopy.Text, {project.Folder, ReadableUrl(*url),
                                                                            ReadableUrl(project.Url)}));
}

// Fetches nothing: the first get does, and keeps obstructing files under other names.
void MakeWorkingCopy(Client& client, const Project& project) {
  const Pool pool;
  const svn_opt_revision_t head = Newest();
  // libsvn treats a symbolic link as an obstruction.
  std::error_code missing;
  const std::string folder = std::filesystem::canonical(project.Folder, missing).string();
  client.Run(svn_client_checkout3(nullptr, project.Url.c_str(), (missing ? project.Folder : folder).c_str(),
                                  &head, &head, svn_depth_empty,
                                  /*ignore_externals*/ TRUE, /*allow_unver_obstructions*/ TRUE,
                                  client.ClientContext(), pool));
}

/// Whether .svn was deleted while libsvn has it open.
bool IsAdministrationGone(Client& client, const std::string& folder) {
  const Pool pool;
  const char* root = nullptr;
  svn_error_t* error = svn_client_get_wc_root(&root, folder.c_str(), client.ClientContext(), pool, pool);
  svn_error_clear(error);
  return error == SVN_NO_ERROR && !IsOnDisk(svn_dirent_join(root, svn_wc_get_adm_dir(pool), pool));
}

}  // namespace

std::string SystemUser() { return GetUserNameText(scc::SCC_USER_SIZE); }

void OpenProject(ProviderContext& context, ProjectNames& names, const OpenMode& mode) {
  if (names.User.empty()) names.User = SystemUser();
  auto client = std::make_unique<Client>(names.User);
  Project project;
  project.Folder = LocalFolderOf(names.LocalFolder);
  if (names.Repository.empty() && names.ProjectName.empty())
    FillNamesFromWorkingCopy(*client, project.Folder, names);

  const auto root = ToRepositoryUrl(names.Repository);
  if (!root) throw Failure(scc::SCC_E_PROJSYNTAXERR, Format(sBadUrl.Text, {names.Repository}));
  const auto path = ToProjectPath(names.ProjectName);
  if (!path) throw Failure(scc::SCC_E_PROJSYNTAXERR, Format(sBadProjectPath.Text, {names.ProjectName}));
  project.Url = UrlOf(*root, *path);

  RequireConsent(*root, project, names, mode);
  bool bound = false;  // checked before anything is created in the repository
  RetryWhenFree(context, project.Folder, [&] { bound = IsWorkingCopyOf(*client, project); });
  RequireProject(context, *client, *root, project, names, mode);
  RetryWhenFree(context, project.Folder, [&] {
    if (bound || IsWorkingCopyOf(*client, project))
      FinishInterrupted(context, project.Folder);
    else
      MakeWorkingCopy(*client, project);
  });
  context.Open(std::move(client), std::move(project));
}

void EnsureWorkingCopy(ProviderContext& context) {
  const Project& project = context.CurrentProject();
  if (IsAdministrationGone(context.Svn(), project.Folder)) context.Reconnect();
  if (!IsWorkingCopyOf(context.Svn(), project)) MakeWorkingCopy(context.Svn(), project);
}

}  // namespace kestrel::svnscc
