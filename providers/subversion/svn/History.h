// The revisions in which a file or folder changed, newest first, fetched page by page.
#pragma once

#include <string>
#include <vector>

#include "subversion/svn/NodeInfo.h"

namespace kestrel::svnscc {

struct Revision {
  svn_revnum_t Number = SVN_INVALID_REVNUM;
  apr_time_t When = 0;
  std::string Author;
  std::string Comment;
};

class History {
 public:
  static constexpr int kPage = 100;

  /// `place` is as in NodeInfo.h.  Fetches nothing yet.
  History(Client& client, std::string place, int page = kPage);
  /// Fetches and appends at most one page.  Throws Failure.
  void LoadMore();
  bool HasMore() const { return hasMore_; }
  const std::vector<Revision>& Revisions() const { return revisions_; }
  const std::string& Place() const { return place_; }
  /// The file in that revision.  Throws Failure.
  Contents TextOf(std::size_t index);

 private:
  std::vector<Revision> Load(const svn_opt_revision_t& from);

  Client& client_;
  std::string place_;
  int page_;
  std::vector<Revision> revisions_;
  bool hasMore_ = true;
};

}  // namespace kestrel::svnscc
