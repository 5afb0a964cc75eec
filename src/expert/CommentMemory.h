// Comments that must not be lost: what is remembered of them from one dialog to the next, and the way through them
// within one dialog.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kestrel::addin {

/// The comments of one project, kept in the host's settings of the user.  A comment that reached the provider is a
/// recent one.  One that was typed and did not is pending: it is offered again in its place, until it is used, replaced
/// or cleared.
///
/// Changes are made in memory; Save() stores them.  User-interface thread only.
class TCommentMemory {
 public:
  static constexpr std::size_t kRecent = 10;
  static constexpr std::size_t kPending = 100;  ///< of one project; the oldest gives way
  static constexpr std::size_t kProjects = 20;  ///< in the store; the one not used for longest gives way

  /// Reads what is stored for that project; file names compare ignoring case.  Without the host's settings it is empty.
  explicit TCommentMemory(std::string projectFile);

  /// Where a comment is typed: for a command, or for one file of it.
  static std::string Place(std::string_view command, std::string_view fileName = {});

  /// What was typed in that place and has not been used since; empty when there is none.
  std::string Pending(const std::string& place) const;
  /// The last comments used, the newest first, none twice, none blank.
  const std::vector<std::string>& Recent() const { return recent_; }

  /// The user left the place with this text, whatever becomes of it.  A blank one clears what was pending there.
  void Typed(const std::string& place, const std::string& text);
  /// The comment typed in that place has reached the provider.
  void Used(const std::string& place, const std::string& text);

  /// Stores what has changed.  A failure becomes a warning in the message window.
  void Save();

 private:
  std::string Text(long long turn) const;
  void TakeOver(std::string_view comments);
  void Store();

  std::string project_file_;
  std::vector<std::string> recent_;
  std::vector<std::pair<std::string, std::string>> pending_;  // place and text, the newest first
  bool changed_ = false;
};

/// The comments that a dialog can go back to, and the one it is at: first the draft, what the dialog opened with, then
/// the recent comments from the newest to the oldest.  A comment that is changed and left becomes one of the list.
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

}  // namespace kestrel::addin
