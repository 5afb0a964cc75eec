// The comments of a project, stored per user, and the history within one comment dialog.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kestrel::addin {

/// The comments of one project, stored in the user's settings of the host.  A comment that reached the provider is recent.
/// One that was typed and did not is pending: it is offered again in its place until it is used, replaced or cleared.
///
/// Changes stay in memory until Save().  User-interface thread only.
class TCommentMemory {
 public:
  static constexpr std::size_t kRecent = 10;
  static constexpr std::size_t kPending = 100;  ///< per project; the oldest is dropped
  static constexpr std::size_t kProjects = 20;  ///< in the store; the least recently used is dropped

  /// Loads the comments of that project; file names compare ignoring case.  Empty without the host's settings.
  explicit TCommentMemory(std::string projectFile);

  /// The key of a command's comment, or of the comment for one of its files.
  static std::string Place(std::string_view command, std::string_view fileName = {});

  /// The unused comment typed in that place; empty when there is none.
  std::string Pending(const std::string& place) const;
  /// The last used comments, newest first, without duplicates and blank ones.
  const std::vector<std::string>& Recent() const { return recent_; }

  /// Records a typed comment, even if the command was cancelled or fails.  A blank one clears the pending comment.
  void RecordTyped(const std::string& place, const std::string& text);
  /// Records that the comment typed in that place has reached the provider.
  void RecordUsed(const std::string& place, const std::string& text);

  /// Stores changes.  A failure becomes a warning in the message window.
  void Save();

 private:
  std::string Text(long long turn) const;
  void Load(std::string_view comments);
  void Store();

  std::string projectFile_;
  std::vector<std::string> recent_;
  std::vector<std::pair<std::string, std::string>> pending_;  // place and text, newest first
  bool changed_ = false;
};

/// The comments that a dialog can go back to, and the current one: first the draft that the dialog opened with, then the
/// recent comments, newest first.  A comment that is edited and left is added to the list.
class TCommentHistory {
 public:
  TCommentHistory(const std::vector<std::string>& recent, const std::string& offered);

  /// Records the text that the dialog shows.  Call it before every operation below.
  void Record(const std::string& shown);
  /// Moves to the next older or newer comment that differs from the one shown; nullopt when there is none.
  std::optional<std::string> Older();
  std::optional<std::string> Newer();
  /// Moves to that entry, which must exist.
  const std::string& Choose(std::size_t entry);

  /// The draft is entry 0.
  const std::vector<std::string>& Entries() const { return entries_; }
  bool IsAtDraft() const { return at_ == 0; }
  bool HasEarlier() const { return entries_.size() > 1; }

 private:
  std::vector<std::string> entries_;
  std::size_t at_ = 0;
};

}  // namespace kestrel::addin
