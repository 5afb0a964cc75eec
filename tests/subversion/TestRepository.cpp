#include "TestRepository.h"

#include <svn_fs.h>
#include <svn_repos.h>

#include <cstdlib>

#include "subversion/project/UsedRepositories.h"
#include "subversion/svn/Client.h"
#include "subversion/svn/Repository.h"

namespace kestrel::svnscc {

namespace {

/// The file system, opened anew: what was written meanwhile is seen.
struct Open {
  explicit Open(const std::string& folder) {
    svn_repos_t* repository = nullptr;
    Check(svn_repos_open3(&repository, folder.c_str(), nullptr, pool, pool));
    fs = svn_repos_fs(repository);
    Check(svn_fs_youngest_rev(&youngest, fs, pool));
    Check(svn_fs_revision_root(&root, fs, youngest, pool));
  }
  Pool pool;
  svn_fs_t* fs = nullptr;
  svn_fs_root_t* root = nullptr;
  svn_revnum_t youngest = 0;
};

const svn_lock_t* LockOf(const Open& open, const std::string& path) {
  svn_lock_t* lock = nullptr;
  Check(svn_fs_get_lock(&lock, open.fs, ("/" + path).c_str(), open.pool));
  return lock;
}

}  // namespace

std::string SubversionLibrary() {
  const char* const isolated = std::getenv("KESTREL_ISOLATED_PROVIDER");
  return isolated != nullptr ? isolated : SUBVERSION_SCC_PATH;
}

TTestRepository::TTestRepository()
    : configuration_("SUBVERSION_SCC_CONFIG_DIR", temporary_.MakeFolder("config").c_str()),
      registry_("CORVANE_REGISTRY_DIR", temporary_.MakeFolder("registry").c_str()),
      folder_(temporary_ / "repository"),
      url_(CreateRepository(folder_)) {
  MarkUsed(url_);
  SetLimit("remember-seconds", 0);  // users see each other's work at once
}

void TTestRepository::SetLimit(const std::string& name, int seconds) const {
  temporary_.Write("config/config", "[subversion-scc]\n" + name + " = " + std::to_string(seconds) + "\n");
}

void TTestRepository::Choose(const std::string& project) const { MarkProjectUsed(url_, project); }

svn_revnum_t TTestRepository::Youngest() const { return Open(folder_).youngest; }

std::string TTestRepository::RevisionProperty(svn_revnum_t revision, const char* name) const {
  const Open open(folder_);
  svn_string_t* value = nullptr;
  Check(svn_fs_revision_prop2(&value, open.fs, revision, name, TRUE, open.pool, open.pool));
  return value ? value->data : "";
}

bool TTestRepository::Exists(const std::string& path) const {
  const Open open(folder_);
  svn_node_kind_t kind = svn_node_none;
  Check(svn_fs_check_path(&kind, open.root, path.c_str(), open.pool));
  return kind != svn_node_none;
}

std::string TTestRepository::Contents(const std::string& path) const {
  const Open open(folder_);
  svn_stream_t* stream = nullptr;
  Check(svn_fs_file_contents(&stream, open.root, path.c_str(), open.pool));
  svn_string_t* text = nullptr;
  Check(svn_string_from_stream2(&text, stream, 0, open.pool));
  return {text->data, text->len};
}

std::optional<std::string> TTestRepository::Property(const std::string& path, const char* name) const {
  const Open open(folder_);
  svn_string_t* value = nullptr;
  Check(svn_fs_node_prop(&value, open.root, path.c_str(), name, open.pool));
  return value != nullptr ? std::optional<std::string>(value->data) : std::nullopt;
}

std::optional<std::string> TTestRepository::LockOwner(const std::string& path) const {
  const Open open(folder_);
  const svn_lock_t* lock = LockOf(open, path);
  return lock != nullptr ? std::optional<std::string>(lock->owner) : std::nullopt;
}

void TTestRepository::BreakLock(const std::string& path) const {
  const Open open(folder_);
  const svn_lock_t* lock = LockOf(open, path);
  svn_fs_access_t* access = nullptr;
  Check(svn_fs_create_access(&access, "admin", open.pool));
  Check(svn_fs_set_access(open.fs, access));
  Check(svn_fs_unlock(open.fs, ("/" + path).c_str(), lock->token, /*break_lock*/ TRUE, open.pool));
}

void TTestRepository::WriteHook(const std::string& name, const std::string& script) const {
  const std::string file = temporary_.Write("repository/hooks/" + name, "#!/bin/sh\n" + script);
  fs::permissions(file, fs::perms::owner_all);
}

}  // namespace kestrel::svnscc
