// The comments that a comment dialog can go back to.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

/// A list of comments and the place in it that the dialog is at: first the draft, what the dialog opened with, then the
/// earlier comments from the newest to the oldest.  Nothing that was typed is lost by going elsewhere: a changed
/// comment becomes one of the list.
class TCommentHistory {
 public:
  TCommentHistory(const std::vector<std::string>& recent, const std::string& offered);

  /// The dialog shows this text now.  To be called before every operation below.
  void Keep(const std::string& shown);
  /// The next older or newer comment that differs from the one shown; nullopt, and no move, when there is none.
  std::optional<std::string> Older();
  std::optional<std::string> Newer();
  /// Goes to that entry, which must exist.
  const std::string& Choose(std::size_t entry);

  /// The draft is entry 0.
  const std::vector<std::string>& Entries() const { return entries_; }
  bool IsAtDraft() const { return at_ == 0; }
  bool HasEarlier() const { return entries_.size() > 1; }

 private:
  std::vector<std::string> entries_;
  std::size_t at_ = 0;
};
