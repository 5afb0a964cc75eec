#include "subversion/svn/WorkingCopyLocks.h"

#include <svn_dirent_uri.h>

#include <chrono>
#include <cstring>
#include <thread>

#include "subversion/svn/LocalStatus.h"
#include "subversion/svn/ProviderContext.h"
#include "subversion/svn/SvnStrings.h"

namespace kestrel::svnscc {
namespace {

struct LockSearch {
  svn_client_ctx_t* context;
  bool found = false;
};

svn_error_t* LookForLock(void* baton, const char* path, const svn_client_info2_t* info,
                         apr_pool_t* pool) noexcept {
  auto& search = *static_cast<LockSearch*>(baton);
  svn_boolean_t locked = FALSE;
  if (info->kind == svn_node_dir)
    SVN_ERR(svn_wc_locked2(nullptr, &locked, search.context->wc_ctx, path, pool));
  search.found = search.found || locked != FALSE;
  return SVN_NO_ERROR;
}

/// Whether a folder below or above `folder` has a working-copy lock, of a live or a dead process.
bool IsInUse(const std::string& folder) {
  const Pool pool;
  Client fresh("");  // a client that has the working copy open already does not see new locks
  LockSearch search{fresh.ClientContext()};
  const svn_opt_revision_t here{};
  try {
    fresh.Run(svn_client_info4(folder.c_str(), &here, &here, svn_depth_infinity, TRUE, TRUE, FALSE, nullptr,
                               LookForLock, &search, fresh.ClientContext(), pool));
    const std::string root = WorkingCopyRoot(folder);
    for (const char* above = folder.c_str(); !search.found && root != above && above[1] != '\0';) {
      above = svn_dirent_dirname(above, pool);
      svn_boolean_t locked = FALSE;
      fresh.Run(svn_wc_locked2(nullptr, &locked, fresh.ClientContext()->wc_ctx, above, pool));
      search.found = locked != FALSE;
    }
  } catch (const Failure& failure) {
    return failure.MeansBusyWorkingCopy();
  }
  return search.found;
}

void CleanUp(const std::string& root) {
  const Pool pool;
  Client fresh("");
  const auto run = [&](bool breakLocks) {
    fresh.Run(svn_client_cleanup2(root.c_str(), breakLocks, /*fix_recorded_timestamps*/ TRUE,
                                  /*clear_dav_cache*/ FALSE, /*vacuum_pristines*/ FALSE,
                                  /*include_externals*/ FALSE, fresh.ClientContext(), pool));
  };
  try {
    run(false);
  } catch (const Failure& failure) {
    if (!failure.MeansBusyWorkingCopy()) throw;
    run(true);
  }
}

enum class Report { Yes, No };

/// Cleans the working copy up if no other process uses it; else returns the names of the programs that do.
std::vector<std::string> CleanUpIfUnused(ProviderContext& context, const std::string& folder, Report report) {
  const std::string root = WorkingCopyRoot(folder);
  // A second marker of this process would find that of the open project locked.
  const UseMarker own = context.IsOpen() ? UseMarker() : UseMarker(root);
  const UseMarker& mark = context.IsOpen() ? context.Mark() : own;
  return mark.IfUnused([&] {
    if (!IsInUse(folder)) return;  // the other process has finished
    CleanUp(root);
    if (report == Report::Yes) context.Out().Warning(Format(sFinishedInterrupted.Text, {NativeName(folder)}));
  });
}

/// Returns when the working copy is free.  Throws Failure after a timeout, or if the user cancels.
void WaitUntilFree(ProviderContext& context, const std::string& folder) {
  constexpr std::chrono::seconds kTimeout{5};
  constexpr std::chrono::milliseconds kPause{50};
  const auto end = std::chrono::steady_clock::now() + kTimeout;
  while (IsInUse(folder)) {
    const auto users = CleanUpIfUnused(context, folder, Report::Yes);
    if (users.empty()) return;
    if (std::chrono::steady_clock::now() > end)
      throw Failure(scc::SCC_E_ACCESSFAILURE, Format(sInUse.Text, {users.front(), NativeName(folder)}));
    context.StopIfCancelled();
    std::this_thread::sleep_for(kPause);
  }
}

}  // namespace

std::string WorkingCopyRoot(const std::string& folder) {
  const Pool pool;
  for (const char* root = folder.c_str();; root = svn_dirent_dirname(root, pool)) {
    if (IsOnDisk(svn_dirent_join_many(pool, root, svn_wc_get_adm_dir(pool), "wc.db", nullptr))) return root;
    if (svn_dirent_is_root(root, std::strlen(root))) return {};
  }
}

void FinishInterrupted(ProviderContext& context, const std::string& folder) {
  if (IsInUse(folder)) CleanUpIfUnused(context, folder, Report::Yes);
}

void RetryWhenFree(ProviderContext& context, const std::string& folder, const std::function<void()>& body) {
  constexpr int kTries = 20;
  for (int tried = 1;; ++tried) {
    try {
      return body();
    } catch (const Failure& failure) {
      if (!failure.MeansBusyWorkingCopy() || tried == kTries) throw;
    }
    WaitUntilFree(context, folder);
  }
}

void ReleaseOwnLocks(ProviderContext& context) {
  const std::string folder = context.CurrentProject().Folder;
  context.Reconnect();  // the old client still counts the lock as its own
  if (IsInUse(folder)) CleanUpIfUnused(context, folder, Report::No);
}

scc::Long RunCommand(ProviderContext& context, const std::function<scc::Long()>& command) {
  scc::Long result = scc::SCC_OK;
  const std::string folder = context.CurrentProject().Folder;
  try {
    RetryWhenFree(context, folder, [&] { result = command(); });
  } catch (const Failure& failure) {
    if (failure.Result() != scc::SCC_I_OPERATIONCANCELED) throw;
    ReleaseOwnLocks(context);
    throw;
  }
  context.ReportLostLocks();
  return result;
}

}  // namespace kestrel::svnscc
