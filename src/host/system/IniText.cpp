#include "system/IniText.h"

#include <algorithm>
#include <iterator>
#include <set>

#include "system/Text.h"

namespace kestrel {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view kBlanks = " \t";
/// The characters that end a name.
constexpr std::string_view kReservedInNames = "=]";

bool Contains(std::string_view set, char c) { return set.find(c) != set.npos; }
bool IsControl(char c) { return static_cast<unsigned char>(c) < ' ' || c == 0x7F; }

std::string_view WithoutBlanks(std::string_view text) {
  const auto begin = text.find_first_not_of(kBlanks);
  return begin == text.npos ? text.substr(text.size())
                            : text.substr(begin, text.find_last_not_of(kBlanks) - begin + 1);
}

/// The first line of `text`, including its ending.  A lone "\r" ends a line as well, as it does for other readers.
std::string_view FirstLine(std::string_view text) {
  const auto end = text.find_first_of("\r\n");
  if (end == text.npos) return text;
  return text.substr(0, end + (text.substr(end).starts_with("\r\n") ? 2 : 1));
}

std::string_view WithoutLineEnd(std::string_view line) {
  return line.substr(0, std::min(line.find_first_of("\r\n"), line.size()));
}

// ------------------------------------------------------------------------------------------------- escapes

/// Decodes text that earlier versions escaped without the mark %"...".
std::string UnescapeUnmarked(std::string_view text, std::string_view reserved) {
  return PercentDecode(text, [&](char c, std::size_t at) {
    const bool atAnEnd = at == 0 || at + 3 == text.size();
    return IsControl(c) || c == '%' || Contains(reserved, c) || (c == ' ' && atAnEnd);
  });
}

bool IsQuoted(std::string_view text) {
  return text.size() >= 2 && text.front() == text.back() && Contains("\"'", text.front());
}

/// The offset of the "]" that ends the name in a section line.  A "]" inside a word belongs to the name.
std::size_t SectionNameEnd(std::string_view line) {
  for (auto end = line.find(']'); end != line.npos; end = line.find(']', end + 1))
    if (end + 1 == line.size() || Contains(kBlanks, line[end + 1])) return end;
  return line.find(']');
}

/// Encodes `text` in the first form for which readsBack(form) returns true, that is, which decodes to `text` again.
template <typename TReadsBack>
std::string Encode(std::string_view text, const TReadsBack& readsBack) {
  const std::string plain(text);
  if (std::ranges::none_of(text, [](char c) { return IsControl(c) && c != '\t'; }))
    for (const auto& written : {plain, '"' + plain + '"'})
      if (readsBack(written)) return written;
  const auto mustEscape = [](char c) { return IsControl(c) || c == '%' || Contains(kReservedInNames, c); };
  return "%\"" + PercentEncode(text, mustEscape) + '"';
}

}  // namespace

// --------------------------------------------------------------------------------------------------- lines

TIniText::TIniText(std::string_view text, TPercent percent) : percent_(percent), sections_{{"", kRoot}} {
  byteOrderMark_ = text.starts_with(kByteOrderMark);
  if (byteOrderMark_) text.remove_prefix(kByteOrderMark.size());
  const auto first = FirstLine(text);
  lineEnd_ = first.substr(WithoutLineEnd(first).size());
  if (lineEnd_.empty()) lineEnd_ = LineEnd;
  while (!text.empty()) {
    const auto line = FirstLine(text);
    Append(Parse(line));
    text.remove_prefix(line.size());
  }
}

TIniText::TLine TIniText::Parse(std::string_view raw) const {
  TLine line{.Raw = std::string(raw), .Name = {}};
  const auto text = WithoutBlanks(WithoutLineEnd(raw));
  if (text.empty()) return line;
  if (Contains(";#", text.front())) {
    line.Kind = TKind::Comment;
  } else if (text.front() == '[') {
    const auto end = SectionNameEnd(text);
    line.Kind = end == text.npos ? TKind::Damaged : TKind::Section;
    line.Section = kNone;
    if (end != text.npos) line.Name = Decode(WithoutBlanks(text.substr(1, end - 1)), kReservedInNames);
  } else {
    const auto sign = text.find('=');
    line.Kind = sign == 0 || sign == text.npos ? TKind::Damaged : TKind::Key;
    if (line.Kind == TKind::Damaged) return line;
    line.Name = Decode(WithoutBlanks(text.substr(0, sign)), kReservedInNames);
    const auto content = WithoutLineEnd(raw);
    const auto value = WithoutBlanks(content.substr(content.find('=') + 1));
    line.ValueAt = static_cast<std::size_t>(value.data() - raw.data());
    line.ValueSize = value.size();
  }
  return line;
}

void TIniText::Append(TLine line) {
  if (!lines_.empty()) EndLine(lines_.back());
  if (line.Kind == TKind::Section) {
    line.Section = sections_.try_emplace(FoldCase(line.Name), sections_.size()).first->second;
  } else if (line.Section != kNone) {
    line.Section = lines_.empty() ? kRoot : lines_.back().Section;
  }
  lines_.push_back(std::move(line));
}

/// Adds the line ending that the last line of a text may lack.
void TIniText::EndLine(TLine& line) const {
  if (WithoutLineEnd(line.Raw).size() == line.Raw.size()) line.Raw += lineEnd_;
}

std::string TIniText::Text() const {
  std::string text(byteOrderMark_ ? kByteOrderMark : std::string_view());
  for (const auto& line : lines_) text += line.Raw;
  return text;
}

std::optional<TIniText::TDamage> TIniText::Damage() const {
  const auto damaged = std::ranges::find(lines_, TKind::Damaged, &TLine::Kind);
  if (damaged == lines_.end()) return std::nullopt;
  return TDamage{static_cast<std::size_t>(damaged - lines_.begin()) + 1, Trim(damaged->Raw)};
}

// --------------------------------------------------------------------------------------------------- texts

std::string TIniText::Decode(std::string_view text, std::string_view reserved) const {
  if (text.size() >= 3 && text.starts_with("%\"") && text.ends_with('"'))
    return PercentDecode(text.substr(2, text.size() - 3));
  if (IsQuoted(text)) text = text.substr(1, text.size() - 2);
  return percent_ == TPercent::Escape ? UnescapeUnmarked(text, reserved) : std::string(text);
}

std::string TIniText::EncodeValue(std::string_view value) const {
  return Encode(value, [&](const std::string& written) {
    return WithoutBlanks(written) == written && Decode(written, {}) == value;
  });
}

TIniText::TLine TIniText::KeyLine(std::size_t section, std::string_view key, std::string_view value) const {
  const auto name = Encode(key, [&](const std::string& written) {
    const auto line = Parse(written + '=');
    return line.Kind == TKind::Key && line.Name == key;
  });
  auto line = Parse(name + '=' + EncodeValue(value) + lineEnd_);
  line.Section = section;
  return line;
}

// ------------------------------------------------------------------------------------------------- reading

std::size_t TIniText::Find(std::string_view section) const {
  const auto known = sections_.find(FoldCase(section));
  return known == sections_.end() ? kNone : known->second;
}

std::string TIniText::ValueOf(const TLine& line) const {
  return Decode(std::string_view(line.Raw).substr(line.ValueAt, line.ValueSize), {});
}

std::vector<std::string> TIniText::Sections() const {
  std::vector<std::string> names;
  std::set<std::size_t> seen{kRoot};
  for (const auto& line : lines_)
    if (line.Kind == TKind::Section && seen.insert(line.Section).second) names.push_back(line.Name);
  return names;
}

bool TIniText::HasSection(std::string_view section) const {
  const auto index = Find(section);
  return index != kNone && index != kRoot && std::ranges::any_of(lines_, [&](const TLine& line) {
           return line.Kind == TKind::Section && line.Section == index;
         });
}

std::vector<std::size_t> TIniText::KeyLines(std::string_view section, std::string_view key) const {
  std::vector<std::size_t> found;
  const auto index = Find(section);
  for (std::size_t at = 0; index != kNone && at < lines_.size(); ++at)
    if (lines_[at].Kind == TKind::Key && lines_[at].Section == index && SameText(lines_[at].Name, key))
      found.push_back(at);
  return found;
}

std::vector<std::string> TIniText::Keys(std::string_view section) const {
  std::vector<std::string> names;
  std::set<std::string> seen;
  const auto index = Find(section);
  for (const auto& line : lines_)
    if (line.Kind == TKind::Key && line.Section == index && index != kNone &&
        seen.insert(FoldCase(line.Name)).second)
      names.push_back(line.Name);
  return names;
}

std::vector<std::string> TIniText::Values(std::string_view section, std::string_view key) const {
  std::vector<std::string> values;
  for (const auto at : KeyLines(section, key)) values.push_back(ValueOf(lines_[at]));
  return values;
}

std::optional<std::string> TIniText::Value(std::string_view section, std::string_view key) const {
  const auto lines = KeyLines(section, key);
  return lines.empty() ? std::nullopt : std::optional(ValueOf(lines_[lines.front()]));
}

// ------------------------------------------------------------------------------------------------- changing

void TIniText::Replace(TLine& line, std::string_view value) {
  const auto written = EncodeValue(value);
  line.Raw.replace(line.ValueAt, line.ValueSize, written);
  line.ValueSize = written.size();
}

void TIniText::Insert(std::size_t at, std::vector<TLine> lines) {
  if (at > 0 && !lines.empty()) EndLine(lines_[at - 1]);
  lines_.insert(lines_.begin() + static_cast<std::ptrdiff_t>(at), std::move_iterator(lines.begin()),
                std::move_iterator(lines.end()));
}

/// The insertion point for a new key of the section: after its last key or, without keys, after its section line.
std::size_t TIniText::EndOf(std::size_t section) const {
  const auto belongs = [&](TKind kind) {
    return [section, kind](const TLine& line) { return line.Kind == kind && line.Section == section; };
  };
  for (const auto kind : {TKind::Key, TKind::Section}) {
    const auto last = std::find_if(lines_.rbegin(), lines_.rend(), belongs(kind));
    if (last != lines_.rend()) return static_cast<std::size_t>(lines_.rend() - last);
  }
  return 0;
}

/// The section's number.  Appends a missing section to the text, after an empty line.
std::size_t TIniText::FindOrAppend(std::string_view section) {
  const auto known = Find(section);
  if (known == kRoot || HasSection(section)) return known;
  const auto name = Encode(section, [&](const std::string& written) {
    const auto line = Parse('[' + written + ']');
    return line.Kind == TKind::Section && line.Name == section;
  });
  if (!lines_.empty() && lines_.back().Kind != TKind::Blank) Append(Parse(lineEnd_));
  Append(Parse('[' + name + ']' + lineEnd_));
  return lines_.back().Section;
}

bool TIniText::SetValue(std::string_view section, std::string_view key, std::string_view value) {
  const auto known = KeyLines(section, key);
  if (!known.empty() && ValueOf(lines_[known.front()]) == value) return false;
  if (known.empty()) {
    const auto index = FindOrAppend(section);
    Insert(EndOf(index), {KeyLine(index, key, value)});
  } else {
    Replace(lines_[known.front()], value);
  }
  return true;
}

bool TIniText::SetValues(std::string_view section, std::string_view key,
                         const std::vector<std::string>& values) {
  const auto old = Values(section, key);
  if (old == values) return false;
  const auto shorter = std::min(old.size(), values.size());
  const auto same = static_cast<std::size_t>(
      std::mismatch(old.begin(), old.begin() + static_cast<std::ptrdiff_t>(shorter), values.begin()).first -
      old.begin());
  std::size_t sameAtEnd = 0;
  while (sameAtEnd < shorter - same &&
         old[old.size() - 1 - sameAtEnd] == values[values.size() - 1 - sameAtEnd])
    ++sameAtEnd;

  const auto lines = KeyLines(section, key);
  const auto replaced = shorter - sameAtEnd;
  for (auto i = same; i < replaced; ++i) Replace(lines_[lines[i]], values[i]);
  if (values.size() > old.size()) {
    const auto index = FindOrAppend(section);
    std::vector<TLine> added;
    for (auto i = replaced; i < values.size() - sameAtEnd; ++i)
      added.push_back(KeyLine(index, key, values[i]));
    const auto at = replaced > 0 ? lines[replaced - 1] + 1 : lines.empty() ? EndOf(index) : lines.front();
    Insert(at, std::move(added));
  } else {
    for (auto i = replaced; i < old.size() - sameAtEnd; ++i) lines_[lines[i]].Raw.clear();
    std::erase_if(lines_, [](const TLine& line) { return line.Raw.empty(); });
  }
  return true;
}

bool TIniText::DeleteSection(std::string_view section) {
  if (!HasSection(section)) return false;
  const auto index = Find(section);
  const auto begins = [&](const TLine& line) { return line.Kind == TKind::Section && line.Section == index; };
  for (auto begin = std::ranges::find_if(lines_, begins); begin != lines_.end();
       begin = std::ranges::find_if(lines_, begins)) {
    auto end = std::next(begin);
    for (auto next = end; next != lines_.end() && next->Section == index && next->Kind != TKind::Section;
         ++next)
      if (next->Kind == TKind::Key) end = std::next(next);
    // FindOrAppend() put an empty line before it.
    if (begin != lines_.begin() && std::prev(begin)->Kind == TKind::Blank) --begin;
    lines_.erase(begin, end);
  }
  return true;
}

}  // namespace kestrel
