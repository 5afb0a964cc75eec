#include "expert/CommentMemory.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <stdexcept>

#include "expert/MessageLog.h"
#include "expert/SccExpertStrings.h"
#include "host/Options.h"

namespace kestrel::addin {

namespace {

// The store: one field per project, "turn&project file&kind=comment&...".  The turn counts changes; the lowest is the
// least recently used project.  A kind is kRecentKind or the place of a pending comment.
constexpr const char* kSettings = "SCMComments";
constexpr const char* kField = "Project%d";
constexpr std::string_view kRecentKind = "recent";

IOTAPropertySet* Settings() {
  auto* services = IdeService<IOTAOptionsServices>();
  return services ? &services->PropertySet(kSettings) : nullptr;
}

std::string FieldName(std::size_t index) { return Format(kField, {static_cast<long long>(index) + 1}); }

std::string Encoded(std::string_view text) {
  return PercentEncode(text, [](char c) {
    return static_cast<unsigned char>(c) < ' ' || std::string_view("%&=").find(c) != std::string_view::npos;
  });
}

/// Removes the part up to the next `mark` and the mark from `text`; returns the part.
std::string_view NextPart(std::string_view& text, char mark) {
  const auto part = text.substr(0, text.find(mark));
  text.remove_prefix(std::min(text.size(), part.size() + 1));
  return part;
}

struct TStored {
  long long Turn = 0;
  std::string Project;
  std::string_view Comments;
};

TStored ParseStored(std::string_view text) {
  TStored stored;
  const auto turn = NextPart(text, '&');
  std::from_chars(turn.data(), turn.data() + turn.size(), stored.Turn);
  stored.Project = PercentDecode(NextPart(text, '&'));
  stored.Comments = text;
  return stored;
}

}  // namespace

TCommentMemory::TCommentMemory(std::string projectFile) : projectFile_(std::move(projectFile)) {
  auto* settings = Settings();
  if (!settings) return;
  settings->Load();
  for (std::size_t i = 0; i < kProjects; ++i) {
    const auto text = settings->GetValue(FieldName(i));
    const auto stored = ParseStored(text);
    if (SameText(stored.Project, projectFile_)) Load(stored.Comments);
  }
}

void TCommentMemory::Load(std::string_view comments) {
  while (!comments.empty()) {
    auto comment = NextPart(comments, '&');
    const auto kind = NextPart(comment, '=');
    if (kind == kRecentKind && recent_.size() < kRecent)
      recent_.push_back(PercentDecode(comment));
    else if (kind != kRecentKind && pending_.size() < kPending)
      pending_.emplace_back(PercentDecode(kind), PercentDecode(comment));
  }
}

std::string TCommentMemory::Text(long long turn) const {
  if (recent_.empty() && pending_.empty()) return {};
  auto text = std::to_string(turn) + '&' + Encoded(projectFile_);
  for (const auto& comment : recent_)
    text.append("&").append(kRecentKind).append("=").append(Encoded(comment));
  for (const auto& [place, comment] : pending_)
    text.append("&").append(Encoded(place)).append("=").append(Encoded(comment));
  return text;
}

std::string TCommentMemory::Place(std::string_view command, std::string_view fileName) {
  return std::string(command).append(" ").append(FoldCase(fileName));
}

std::string TCommentMemory::Pending(const std::string& place) const {
  const auto found = std::ranges::find(pending_, place, &std::pair<std::string, std::string>::first);
  return found == pending_.end() ? std::string() : found->second;
}

void TCommentMemory::RecordTyped(const std::string& place, const std::string& text) {
  const bool blank = Trim(text).empty();
  if (Pending(place) == (blank ? std::string() : text)) return;
  std::erase_if(pending_, [&](const auto& pending) { return pending.first == place; });
  if (!blank) pending_.emplace(pending_.begin(), place, text);
  if (pending_.size() > kPending) pending_.pop_back();
  changed_ = true;
}

void TCommentMemory::RecordUsed(const std::string& place, const std::string& text) {
  if (Pending(place) == text) RecordTyped(place, {});
  if (Trim(text).empty() || (!recent_.empty() && recent_.front() == text)) return;
  std::erase(recent_, text);
  recent_.insert(recent_.begin(), text);
  if (recent_.size() > kRecent) recent_.pop_back();
  changed_ = true;
}

void TCommentMemory::Save() {
  if (changed_ && RunCatching([this] { Store(); }, ToLog(mwtWarning, sCommentsNotStored))) changed_ = false;
}

void TCommentMemory::Store() {
  auto* settings = Settings();
  if (!settings) return;
  settings->Load();  // another instance may have changed the store
  long long last = 0;
  long long lowest = std::numeric_limits<long long>::max();
  std::size_t field = 0;
  for (std::size_t i = 0; i < kProjects; ++i) {
    const auto text = settings->GetValue(FieldName(i));
    const auto stored = ParseStored(text);
    last = std::max(last, stored.Turn);
    // Prefer the project's own field, then a free one, then the least recently used.
    const auto rank = SameText(stored.Project, projectFile_) ? -1 : stored.Turn;
    if (rank >= lowest) continue;
    lowest = rank;
    field = i;
  }
  settings->SetValue(FieldName(field), Text(last + 1));
  settings->Save();
}

TCommentHistory::TCommentHistory(const std::vector<std::string>& recent, const std::string& offered)
    : entries_(recent) {
  // The user may overwrite the offered text, so it is also kept as an earlier comment.
  if (!Trim(offered).empty() && std::ranges::count(recent, offered) == 0) entries_.push_back(offered);
  entries_.insert(entries_.begin(), offered);
}

void TCommentHistory::Record(const std::string& shown) {
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

}  // namespace kestrel::addin
