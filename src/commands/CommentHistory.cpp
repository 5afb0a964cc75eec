#include "commands/CommentHistory.h"

#include <algorithm>

#include "host/Text.h"

TCommentHistory::TCommentHistory(const std::vector<std::string>& recent, const std::string& offered)
    : entries_(recent) {
  // What is offered can be typed over, so it stands among the earlier comments too.
  if (!Trim(offered).empty() && std::ranges::count(recent, offered) == 0) entries_.push_back(offered);
  entries_.insert(entries_.begin(), offered);
}

void TCommentHistory::Keep(const std::string& shown) {
  if (IsAtDraft()) entries_[0] = shown;
  if (entries_[at_] == shown || Trim(shown).empty()) return;
  at_ = 1;
  entries_.insert(entries_.begin() + 1, shown);
}

std::optional<std::string> TCommentHistory::Older() {
  for (auto i = at_ + 1; i < entries_.size(); ++i)
    if (entries_[i] != entries_[at_]) return Choose(i);
  return {};
}

std::optional<std::string> TCommentHistory::Newer() {
  for (auto i = at_; i-- > 0;)
    if (entries_[i] != entries_[at_]) return Choose(i);
  return {};
}

const std::string& TCommentHistory::Choose(std::size_t entry) { return entries_[at_ = entry]; }
