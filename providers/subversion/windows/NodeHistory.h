// The history of a file or folder for common/HistoryWindow.
#pragma once

#include "common/windows/HistoryWindow.h"
#include "subversion/svn/CommonLines.h"
#include "subversion/svn/History.h"

namespace kestrel::svnscc {

class ProviderContext;

class NodeHistory : public HistorySource {
 public:
  /// Of a place as in NodeInfo.h; fetches the first page.  Throws Failure.
  NodeHistory(Client& client, const std::string& place);
  void SetFolder(bool isFolder) { isFolder_ = isFolder; }
  /// `path` is the local file.
  void SetLocalFile(ProviderContext& context, std::string path);
  const History& Svn() const { return history_; }

  std::size_t Count() const override { return history_.Revisions().size(); }
  Revision At(std::size_t index) const override;
  bool HasMore() const override { return history_.HasMore(); }
  void LoadMore() override { history_.LoadMore(); }
  bool IsFolder() const override { return isFolder_; }
  Contents FetchContents(std::size_t index) override { return history_.TextOf(index); }
  LineMatcher Matcher() const override { return MatchCommonLines; }
  bool HasLocalFile() const override { return !path_.empty(); }
  bool IsOnDisk() const override;
  Contents ReadLocalContents() override;
  bool IsEdited() override;
  std::string ReplaceLocalFile(std::size_t index) override;

 private:
  History history_;
  bool isFolder_ = false;
  ProviderContext* context_ = nullptr;
  std::string path_;  // empty: no local file
};

}  // namespace kestrel::svnscc
