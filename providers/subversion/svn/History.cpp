#include "subversion/svn/History.h"

#include <svn_compat.h>
#include <svn_path.h>
#include <svn_props.h>
#include <svn_time.h>

namespace kestrel::svnscc {
namespace {

struct LogReceiver {
  std::vector<Revision> revisions;
  std::exception_ptr exception;
};

svn_error_t* OnLogEntry(void* baton, svn_log_entry_t* entry, apr_pool_t* pool) noexcept {
  auto& receiver = *static_cast<LogReceiver*>(baton);
  if (!SVN_IS_VALID_REVNUM(entry->revision)) return SVN_NO_ERROR;
  return RunInCallback(receiver.exception, [&] {
    const char* author = nullptr;
    const char* date = nullptr;
    const char* message = nullptr;
    svn_compat_log_revprops_out(&author, &date, &message, entry->revprops);
    Revision revision{entry->revision, 0, author != nullptr ? author : "", message != nullptr ? message : ""};
    if (date != nullptr) svn_error_clear(svn_time_from_cstring(&revision.When, date, pool));
    receiver.revisions.push_back(std::move(revision));
  });
}

}  // namespace

History::History(Client& client, std::string place, int page)
    : client_(client), place_(std::move(place)), page_(page) {}

void History::LoadMore() {
  if (!hasMore_) return;
  std::vector<Revision> more;
  if (revisions_.empty()) {
    try {
      more = Load(Newest());
    } catch (const Failure& failure) {
      // Deleted since: the history of the local copy still exists.
      if (failure.Result() != scc::SCC_E_FILENOTCONTROLLED || svn_path_is_url(place_.c_str())) throw;
      more = Load(Pristine());
    }
  } else {
    more = Load(Numbered(revisions_.back().Number - 1));
  }
  // Load() asks for one more than a page.
  hasMore_ =
      more.size() > static_cast<std::size_t>(page_) && more[static_cast<std::size_t>(page_) - 1].Number > 1;
  if (more.size() > static_cast<std::size_t>(page_)) more.resize(static_cast<std::size_t>(page_));
  revisions_.insert(revisions_.end(), more.begin(), more.end());
}

std::vector<Revision> History::Load(const svn_opt_revision_t& from) {
  const Pool pool;
  auto* range = static_cast<svn_opt_revision_range_t*>(apr_pcalloc(pool, sizeof(svn_opt_revision_range_t)));
  range->start = from;
  range->end = Numbered(0);
  apr_array_header_t* ranges = apr_array_make(pool, 1, sizeof(svn_opt_revision_range_t*));
  *static_cast<svn_opt_revision_range_t**>(apr_array_push(ranges)) = range;
  const svn_opt_revision_t peg{};
  LogReceiver receiver;
  svn_error_t* error = svn_client_log5(
      ToArray({place_}, pool), &peg, ranges, page_ + 1, /*discover_changed_paths*/ FALSE,
      /*strict_node_history*/ FALSE, /*include_merged_revisions*/ FALSE,
      ToArray({SVN_PROP_REVISION_AUTHOR, SVN_PROP_REVISION_DATE, SVN_PROP_REVISION_LOG}, pool), OnLogEntry,
      &receiver, client_.ClientContext(), pool);
  client_.Run(error, receiver.exception);
  return std::move(receiver.revisions);
}

Contents History::TextOf(std::size_t index) {
  return FetchContents(client_, place_, Numbered(revisions_.at(index).Number));
}

}  // namespace kestrel::svnscc
