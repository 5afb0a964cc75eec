#include "subversion/project/UsedRepositories.h"

#include <svn_checksum.h>

#include <stdexcept>

#include "subversion/svn/Repository.h"
#include "subversion/svn/SvnHandles.h"
#include "system/Registry.h"

namespace kestrel::svnscc {
namespace {

constexpr const char* kKey = "Software\\SubversionScc\\UsedRepositories";

/// A registry value's name: a hash, as URLs may contain characters that names must not, and as two processes may add
/// values at the same time.
std::string NameOf(const std::string& url) {
  EnsureRuntime();
  const Pool pool;
  svn_checksum_t* sum = nullptr;
  Check(svn_checksum(&sum, svn_checksum_sha1, url.data(), url.size(), pool));
  return svn_checksum_to_cstring_display(sum, pool);
}

}  // namespace

bool IsUsed(const std::string& url) {
  TRegistry registry(TRegRoot::CurrentUser);
  return registry.OpenKeyReadOnly(kKey) && registry.ReadString(NameOf(url)) == url;
}

void MarkUsed(const std::string& url) {
  if (IsUsed(url)) return;
  try {
    TRegistry registry(TRegRoot::CurrentUser);
    registry.OpenKey(kKey);
    registry.WriteString(NameOf(url), url);
  } catch (const std::runtime_error&) {
  }
}

void MarkProjectUsed(const std::string& address, const std::string& projectName) {
  const auto root = ToRepositoryUrl(address);
  const auto path = ToProjectPath(projectName);
  if (!root || !path) return;
  MarkUsed(*root);
  MarkUsed(UrlOf(*root, *path));
}

}  // namespace kestrel::svnscc
