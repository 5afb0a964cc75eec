#include "subversion/commands/TemporaryRename.h"

#include <svn_dirent_uri.h>
#include <svn_io.h>

#include <filesystem>
#include <utility>

#include "subversion/commands/CommandStrings.h"
#include "subversion/svn/ProviderContext.h"
#include "system/System.h"

namespace kestrel::svnscc {
namespace {

constexpr std::size_t kLongestName = 255;

std::string Beside(const std::string& path, const std::string& name) {
  const Pool pool;
  return svn_dirent_join(svn_dirent_dirname(path.c_str(), pool), name.c_str(), pool);
}

std::string FreeName(std::string name) {
  while (IsOnDisk(name)) name += "~";
  return name;
}

bool SameContents(const std::string& left, const std::string& right) {
  const Pool pool;
  svn_boolean_t same = FALSE;
  svn_error_t* error = svn_io_files_contents_same_p(&same, left.c_str(), right.c_str(), pool);
  svn_error_clear(error);
  return error == SVN_NO_ERROR && same;
}

}  // namespace

void RenameOnDisk(const std::string& from, const std::string& to) {
  const Pool pool;
  Check(svn_io_file_rename2(from.c_str(), to.c_str(), /*flush_to_disk*/ FALSE, pool));
}

// A fixed name: a suffix might make a long one too long.
TemporaryRename::TemporaryRename(const std::string& path)
    : path_(path), aside_(FreeName(Beside(path, "scc-aside"))) {
  RenameOnDisk(path_, aside_);
}

TemporaryRename::~TemporaryRename() {
  try {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
    RenameOnDisk(aside_, path_);
  } catch (const std::exception&) {
    // Both names are in one folder, which was just writable; nothing is lost either way.
  }
}

std::string FreeNameBeside(const std::string& path) {
  constexpr std::string_view kEnding = ".mine";
  constexpr std::size_t kRoom = 8;  // for what FreeName() appends
  const Pool pool;
  const std::string name = svn_dirent_basename(path.c_str(), pool);
  return FreeName(Beside(
      path, std::string(TruncateUtf8(name, kLongestName - kEnding.size() - kRoom)) + std::string(kEnding)));
}

std::string SaveCopy(ProviderContext& context, const std::string& path) {
  const Pool pool;
  std::string copy = FreeNameBeside(path);
  Check(svn_io_copy_file(path.c_str(), copy.c_str(), /*copy_perms*/ FALSE, pool));
  context.Out().Info(Format(sEditsKept.Text, {context.Label(path), context.Label(copy)}));
  return copy;
}

MovedObstruction::MovedObstruction(ProviderContext& context, std::string path)
    : context_(&context), path_(std::move(path)), copy_(FreeNameBeside(path_)) {
  RenameOnDisk(path_, copy_);
}

MovedObstruction::MovedObstruction(MovedObstruction&& other) noexcept
    : context_(std::exchange(other.context_, nullptr)),
      path_(std::move(other.path_)),
      copy_(std::move(other.copy_)) {}

MovedObstruction::~MovedObstruction() {
  if (context_ == nullptr) return;
  try {
    std::error_code ignored;
    if (!IsOnDisk(path_))
      RenameOnDisk(copy_, path_);
    else if (SameContents(path_, copy_))
      std::filesystem::remove(copy_, ignored);
    else
      context_->Out().Warning(Format(sKeptBeside.Text, {context_->Label(path_), context_->Label(copy_)}));
  } catch (const std::exception&) {  // the file keeps its new name
  }
}

MutedNotifications::MutedNotifications(const ProviderContext& context)
    : context_(context.ClientContext()), notify_(std::exchange(context_->notify_func2, nullptr)) {}

MutedNotifications::~MutedNotifications() { context_->notify_func2 = notify_; }

}  // namespace kestrel::svnscc
