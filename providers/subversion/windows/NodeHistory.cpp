#include "subversion/windows/NodeHistory.h"

#include "subversion/commands/CommandStrings.h"
#include "subversion/commands/GetRevision.h"
#include "subversion/svn/LocalStatus.h"
#include "subversion/svn/ProviderContext.h"
#include "subversion/windows/ProviderWindowStrings.h"
#include "subversion/windows/ProviderWindows.h"

namespace kestrel::svnscc {

NodeHistory::NodeHistory(Client& client, const std::string& place) : history_(client, place) {
  history_.LoadMore();
}

void NodeHistory::SetLocalFile(ProviderContext& context, std::string path) {
  context_ = &context;
  path_ = std::move(path);
}

NodeHistory::Revision NodeHistory::At(std::size_t index) const {
  const auto& revision = history_.Revisions().at(index);
  return {std::to_string(revision.Number), LocalTime(revision.When), revision.Author, revision.Comment};
}

bool NodeHistory::IsOnDisk() const { return svnscc::IsOnDisk(path_); }

Contents NodeHistory::ReadLocalContents() { return svnscc::ReadLocalContents(path_); }

bool NodeHistory::IsEdited() { return ReadLocalStatus(*context_, path_).Differs; }

std::string NodeHistory::ReplaceLocalFile(std::size_t index) {
  const auto revision = history_.Revisions().at(index).Number;
  GetRevision(*context_, path_, revision);
  return Format(sGotRevision.Text, {static_cast<long long>(revision), context_->Label(path_)});
}

scc::Long ShowHistory(ProviderContext& context, scc::WindowHandle parent, Names names) {
  RequireWindows();
  if (names.empty()) throw Failure(scc::SCC_E_FILENOTCONTROLLED, sNoFileNamed);
  const ControlledNode node = RequireControlled(context, names.front());
  NodeHistory history(context.Svn(), node.Place);
  const auto newest = Numbered(history.Svn().Revisions().at(0).Number);
  history.SetFolder(FetchNodeInfo(context.Svn(), node.Place, newest).IsFolder);
  if (node.IsLocal()) history.SetLocalFile(context, node.Path);
  HistoryWindow window(ParentFor(parent), sWindowsTitle, history, context.Label(node.Path));
  window.ShowModal();
  return window.HasChangedFile() ? scc::SCC_I_RELOADFILE : static_cast<scc::Long>(scc::SCC_OK);
}

}  // namespace kestrel::svnscc
