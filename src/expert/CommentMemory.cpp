#include "expert/CommentMemory.h"

#include "host/Text.h"

std::string TCommentMemory::Pending(scc::SCCCommand command) const {
  const auto found = pending_.find(command);
  return found == pending_.end() ? std::string() : found->second;
}

void TCommentMemory::Typed(scc::SCCCommand command, const std::string& text) {
  if (Trim(text).empty()) return;
  pending_[command] = text;
  std::erase(recent_, text);
  recent_.insert(recent_.begin(), text);
  if (recent_.size() > kRecent) recent_.pop_back();
}
