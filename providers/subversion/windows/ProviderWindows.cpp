#include "subversion/windows/ProviderWindows.h"

#include "common/windows/DiffWindow.h"
#include "common/windows/PropertiesWindow.h"
#include "common/windows/WindowStrings.h"
#include "subversion/commands/CommandStrings.h"
#include "subversion/svn/CommonLines.h"
#include "subversion/svn/LocalStatus.h"
#include "subversion/svn/NodeInfo.h"
#include "subversion/svn/NodeProperties.h"
#include "subversion/svn/SvnStrings.h"
#include "subversion/windows/ProviderWindowStrings.h"
#include "system/System.h"

namespace kestrel::svnscc {

void RequireWindows() {
  if (!CanShowWindows()) throw Failure(scc::SCC_E_NONSPECIFICERROR, sShowsNoWindows);
}

namespace {

/// The newest revision of a controlled file; the last fetched one if it was deleted or the repository cannot be contacted.
DiffSide RepositorySide(ProviderContext& context, const ControlledNode& node) {
  const auto titled = [&](const TResString& text, const NodeInfo& facts) {
    return Format(text.Text, {static_cast<long long>(facts.ChangedRevision)});
  };
  try {
    const NodeInfo facts = FetchNodeInfo(context.Svn(), node.Place, Newest());
    return {titled(sInRepository, facts), FetchContents(context.Svn(), node.Place, Newest())};
  } catch (const Failure& failure) {
    if (!node.IsLocal() || failure.Result() == scc::SCC_I_OPERATIONCANCELED) throw;
    const bool gone = failure.Result() == scc::SCC_E_FILENOTCONTROLLED;
    if (!gone) context.Out().Warning(Format(sStatusFailed.Text, {failure.what()}));
    return {titled(gone ? sGoneFromRepository : sLastFetched, LocalNodeInfo(context.Svn(), node.Path)),
            FetchContents(context.Svn(), node.Place, Pristine())};
  }
}

}  // namespace

scc::Long ShowDifferences(ProviderContext& context, scc::WindowHandle parent, const char* name,
                          scc::Long flags) {
  RequireWindows();
  const ControlledNode node = RequireControlled(context, name);
  if (!IsOnDisk(node.Path)) throw Failure(scc::SCC_E_FILENOTEXIST, sFileMissing);
  if (!FileExists(node.Path)) throw Failure(scc::SCC_E_TYPENOTSUPPORTED, sNotAFile);
  DiffWindow window(ParentFor(parent), context.Label(node.Path), RepositorySide(context, node),
                    {sOnDisk, ReadLocalContents(node.Path)}, ToDiffOptions(flags), MatchCommonLines);
  const bool same = window.Same();
  window.ShowModal();
  return same ? scc::SCC_OK : static_cast<scc::Long>(scc::SCC_I_FILEDIFFERS);
}

scc::Long ShowProperties(ProviderContext& context, scc::WindowHandle parent, const char* name) {
  RequireWindows();
  const ControlledNode node = RequireControlled(context, name);
  PropertiesWindow(ParentFor(parent), context.Label(node.Path), DescribeNode(context, node)).ShowModal();
  return scc::SCC_OK;
}

}  // namespace kestrel::svnscc
