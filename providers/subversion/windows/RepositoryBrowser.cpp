// The provider's own application: common/RepositoryWindow on a Subversion repository.
#include "common/windows/RepositoryWindow.h"
#include "subversion/project/OpenProject.h"
#include "subversion/project/RecentRepositories.h"
#include "subversion/svn/NodeProperties.h"
#include "subversion/svn/Repository.h"
#include "subversion/svn/RepositoryTree.h"
#include "subversion/windows/NodeHistory.h"
#include "subversion/windows/ProviderWindowStrings.h"
#include "subversion/windows/ProviderWindows.h"

namespace kestrel::svnscc {
namespace {

class TreeSource : public RepositorySource {
 public:
  explicit TreeSource(const std::string& user) : tree_(user) {}

  std::string Open(const std::string& text) override {
    std::string path = tree_.Open(text);
    RememberRepository(Address());
    return path;
  }
  bool IsOpen() const override { return tree_.IsOpen(); }
  std::string Address() const override { return ReadableUrl(tree_.Root()); }
  std::vector<std::string> RecentAddresses() const override { return RecentRepositories(); }
  std::vector<Entry> FetchEntries(const std::string& path) override {
    std::vector<Entry> entries;
    for (const TreeEntry& entry : tree_.EntriesOf(path))
      entries.push_back({entry.Name, entry.IsFolder, std::to_string(entry.ChangedRevision), entry.ChangedBy,
                         LocalTime(entry.ChangedAt), static_cast<long long>(entry.Size), entry.Lock.Owner});
    return entries;
  }
  void Refresh() override { tree_.Forget(); }
  Contents FetchContents(const std::string& path) override {
    return svnscc::FetchContents(tree_.Svn(), tree_.UrlAt(path), Newest());
  }
  std::unique_ptr<HistorySource> FetchHistory(const std::string& path, bool isFolder) override {
    auto history = std::make_unique<NodeHistory>(tree_.Svn(), tree_.UrlAt(path));
    history->SetFolder(isFolder);
    return history;
  }
  NodeProperties FetchProperties(const std::string& path) override {
    return DescribeNode(tree_.Svn(), tree_.UrlAt(path));
  }

 private:
  RepositoryTree tree_;
};

/// The file named, else the project, else the repository used last.
std::string StartAddress(ProviderContext& context, Names names) {
  if (!context.IsOpen()) {
    const auto recent = RecentRepositories();
    // A server may be out of reach: only the user decides to wait for it.
    return !recent.empty() && recent.front().starts_with("file://") ? recent.front() : "";
  }
  const Project& project = context.CurrentProject();
  const std::string path = names.empty() ? "" : context.InsidePath(names.front());
  if (path.empty() || path == project.Folder) return project.Url;
  return UrlOf(project.Url, path.substr(project.Folder.size() + 1));
}

}  // namespace

scc::Long RunBrowser(ProviderContext& context, scc::WindowHandle parent, Names names) {
  RequireWindows();
  TreeSource source(context.IsOpen() ? context.Svn().User() : SystemUser());
  RepositoryWindow(ParentFor(parent), sWindowsTitle, sBrowserTitle, source,
                   ReadableUrl(StartAddress(context, names)))
      .ShowModal();
  return scc::SCC_OK;
}

}  // namespace kestrel::svnscc
