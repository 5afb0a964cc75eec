#include "subversion/svn/SvnNotifications.h"

#include <algorithm>
#include <array>

#include "subversion/svn/SvnStrings.h"

namespace kestrel::svnscc {
namespace {

enum class About { Files, Everything };

struct Row {
  svn_wc_notify_action_t action;
  About about;
  scc::MessageKind kind;
  TResString text;
};

constexpr std::array kRows{
    Row{svn_wc_notify_commit_modified, About::Everything, scc::SCC_MSG_INFO, sSending},
    Row{svn_wc_notify_commit_added, About::Everything, scc::SCC_MSG_INFO, sAdding},
    Row{svn_wc_notify_commit_replaced, About::Everything, scc::SCC_MSG_INFO, sSending},
    Row{svn_wc_notify_commit_deleted, About::Everything, scc::SCC_MSG_INFO, sRemoving},
    Row{svn_wc_notify_locked, About::Everything, scc::SCC_MSG_INFO, sLocked},
    Row{svn_wc_notify_unlocked, About::Everything, scc::SCC_MSG_INFO, sUnlocked},
    Row{svn_wc_notify_revert, About::Files, scc::SCC_MSG_INFO, sReverted},
    Row{svn_wc_notify_restore, About::Files, scc::SCC_MSG_INFO, sRestored},
    Row{svn_wc_notify_update_add, About::Files, scc::SCC_MSG_INFO, sFetched},
    Row{svn_wc_notify_exists, About::Files, scc::SCC_MSG_WARNING, sKeptExisting},
    Row{svn_wc_notify_update_delete, About::Everything, scc::SCC_MSG_WARNING, sUpdateDeleted},
    Row{svn_wc_notify_update_replace, About::Files, scc::SCC_MSG_INFO, sUpdated},
    Row{svn_wc_notify_tree_conflict, About::Everything, scc::SCC_MSG_WARNING, sTreeConflict},
    Row{svn_wc_notify_resolved, About::Files, scc::SCC_MSG_INFO, sResolved},
};

std::optional<Sentence> ToUpdateSentence(const svn_wc_notify_t& notice, const std::string& label) {
  switch (notice.content_state) {
    case svn_wc_notify_state_conflicted:
      return Sentence{scc::SCC_MSG_WARNING, Format(sConflict.Text, {label})};
    case svn_wc_notify_state_merged:
      return Sentence{scc::SCC_MSG_INFO, Format(sMerged.Text, {label})};
    case svn_wc_notify_state_changed:
      return Sentence{scc::SCC_MSG_INFO, Format(sUpdated.Text, {label})};
    default:
      return std::nullopt;
  }
}

}  // namespace

std::optional<Sentence> ToSentence(const svn_wc_notify_t& notice, const std::string& label) {
  const bool isFolder = notice.kind == svn_node_dir;
  if (notice.action == svn_wc_notify_update_update && !isFolder) return ToUpdateSentence(notice, label);
  const auto row =
      std::find_if(kRows.begin(), kRows.end(), [&](const Row& r) { return r.action == notice.action; });
  if (row == kRows.end() || (isFolder && row->about == About::Files)) return std::nullopt;
  return Sentence{row->kind, Format(row->text.Text, {label})};
}

}  // namespace kestrel::svnscc
