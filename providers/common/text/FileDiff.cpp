#include "common/text/FileDiff.h"

#include <algorithm>
#include <unordered_map>

#include "system/Text.h"

namespace kestrel {

namespace {

/// Of the line that starts at `start`: where its text ends, and where the next line starts.
std::pair<std::size_t, std::size_t> EndOfLine(std::string_view text, std::size_t start) {
  const auto end = text.find_first_of("\r\n", start);
  if (end == std::string_view::npos) return {text.size(), text.size()};
  return {end, text.substr(end, 2) == "\r\n" ? end + 2 : end + 1};
}

std::vector<std::string_view> SplitLines(std::string_view text) {
  std::vector<std::string_view> lines;
  for (std::size_t start = 0; start < text.size();) {
    const auto [end, next] = EndOfLine(text, start);
    lines.push_back(text.substr(start, end - start));
    start = next;
  }
  return lines;
}

bool IsEnded(std::string_view text) { return text.empty() || text.back() == '\n' || text.back() == '\r'; }

/// The line ends of a text, without the lines.
std::string EndsOf(std::string_view text) {
  std::string ends;
  std::copy_if(text.begin(), text.end(), std::back_inserter(ends),
               [](char c) { return c == '\r' || c == '\n'; });
  return ends;
}

/// Line-ending style of the text, taken from its first line.
std::string_view StyleOf(std::string_view text) {
  const auto [end, next] = EndOfLine(text, 0);
  return text.substr(end, next - end);
}

LineEnds CompareEnds(std::string_view left, std::string_view right) {
  if (left.empty() || right.empty()) return LineEnds::Alike;
  if (IsEnded(left) != IsEnded(right)) return IsEnded(left) ? LineEnds::RightUnended : LineEnds::LeftUnended;
  const auto leftStyle = StyleOf(left);
  const auto rightStyle = StyleOf(right);
  const bool otherStyle = !leftStyle.empty() && !rightStyle.empty() && leftStyle != rightStyle;
  return otherStyle ? LineEnds::OtherStyle : LineEnds::Alike;
}

std::string WithoutSpace(std::string_view line) {
  std::string result;
  std::copy_if(line.begin(), line.end(), std::back_inserter(result),
               [](char c) { return std::string_view(" \t\n\v\f\r").find(c) == std::string_view::npos; });
  return result;
}

/// Gives equal lines equal numbers.
class LineNumbers {
 public:
  explicit LineNumbers(const DiffOptions& options) : options_(options) {}
  LineIds Of(const std::string& text) {
    const std::string compared = options_.IgnoreCase ? FoldCase(text) : text;
    LineIds ids;
    for (const auto line : SplitLines(compared)) {
      std::string key = options_.IgnoreSpace ? WithoutSpace(line) : std::string(line);
      ids.push_back(known_.try_emplace(std::move(key), static_cast<int>(known_.size())).first->second);
    }
    return ids;
  }

 private:
  const DiffOptions& options_;
  std::unordered_map<std::string, int> known_;
};

bool IsContinuation(char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; }

}  // namespace

DiffOptions ToDiffOptions(scc::Long flags) {
  return {(flags & scc::SCC_DIFF_IGNORECASE) != 0, (flags & scc::SCC_DIFF_IGNORESPACE) != 0};
}

FileDiff::FileDiff(std::string left, std::string right, const DiffOptions& options, LineMatcher matchCommon)
    : matchCommon_(std::move(matchCommon)),
      left_(std::move(left)),
      right_(std::move(right)),
      leftLines_(SplitLines(left_)),
      rightLines_(SplitLines(right_)),
      ends_(CompareEnds(left_, right_)) {
  Compare(options);
}

void FileDiff::Compare(const DiffOptions& options) {
  rows_.clear();
  differences_.clear();
  LineNumbers numbers(options);
  const LineIds left = numbers.Of(left_);
  const LineIds right = numbers.Of(right_);
  auto matches = MatchLines(left, right, matchCommon_);
  matches.emplace_back(left.size(), right.size());  // sentinel
  int nextLeft = 0;
  int nextRight = 0;
  for (const auto& [leftLine, rightLine] : matches) {
    AppendDifference(nextLeft, leftLine - nextLeft, nextRight, rightLine - nextRight);
    rows_.push_back({leftLine, rightLine, DiffKind::Same});
    nextLeft = leftLine + 1;
    nextRight = rightLine + 1;
  }
  rows_.pop_back();
  endsMatch_ = options.IgnoreSpace || (IsEnded(left_) == IsEnded(right_) && EndsOf(left_) == EndsOf(right_));
}

// Pairs of lines count as changed, the rest of the longer side as removed or added.
void FileDiff::AppendDifference(int left, int leftCount, int right, int rightCount) {
  if (leftCount == 0 && rightCount == 0) return;
  differences_.push_back(rows_.size());
  const int pairs = std::min(leftCount, rightCount);
  for (int i = 0; i < pairs; ++i) rows_.push_back({left + i, right + i, DiffKind::Changed});
  for (int i = pairs; i < leftCount; ++i) rows_.push_back({left + i, DiffRow::kNoLine, DiffKind::Removed});
  for (int i = pairs; i < rightCount; ++i) rows_.push_back({DiffRow::kNoLine, right + i, DiffKind::Added});
}

std::string_view FileDiff::LineOf(const Lines& lines, int number) {
  return number == DiffRow::kNoLine ? std::string_view{} : lines[static_cast<std::size_t>(number)];
}

std::optional<std::size_t> FileDiff::Next(std::size_t row) const {
  const auto next = std::upper_bound(differences_.begin(), differences_.end(), row);
  return next != differences_.end() ? std::optional(*next) : std::nullopt;
}

std::optional<std::size_t> FileDiff::Previous(std::size_t row) const {
  const auto next = std::lower_bound(differences_.begin(), differences_.end(), row);
  return next != differences_.begin() ? std::optional(*std::prev(next)) : std::nullopt;
}

std::pair<Span, Span> ChangedParts(std::string_view left, std::string_view right) {
  const std::size_t shorter = std::min(left.size(), right.size());
  std::size_t start = 0;
  while (start < shorter && left[start] == right[start]) ++start;
  while (start > 0 && ((start < left.size() && IsContinuation(left[start])) ||
                       (start < right.size() && IsContinuation(right[start]))))
    --start;
  std::size_t end = 0;
  while (end < shorter - start && left[left.size() - 1 - end] == right[right.size() - 1 - end]) ++end;
  while (end > 0 && IsContinuation(left[left.size() - end])) --end;
  return {{start, left.size() - start - end}, {start, right.size() - start - end}};
}

}  // namespace kestrel
