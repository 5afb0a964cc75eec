#include "system/Text.h"

#include <algorithm>
#include <iterator>

namespace kestrel {

namespace {

std::string ToText(const TFormatArg& arg) {
  const auto* text = std::get_if<std::string>(&arg);
  return text ? *text : std::to_string(std::get<long long>(arg));
}

bool IsAsciiChar(char c) { return static_cast<unsigned char>(c) < 0x80; }
char FoldAsciiChar(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }
bool IsBlank(char c) { return static_cast<unsigned char>(c) <= ' '; }

constexpr std::string_view kHexDigits = "0123456789ABCDEF";

/// Decodes the escape at the beginning of `text`, if there is one.
std::optional<char> EscapeAt(std::string_view text) {
  if (text.size() < 3 || text[0] != '%') return std::nullopt;
  const auto high = kHexDigits.find(text[1]);
  const auto low = kHexDigits.find(text[2]);
  if (high == kHexDigits.npos || low == kHexDigits.npos) return std::nullopt;
  return static_cast<char>(high * 16 + low);
}

bool IsContinuation(char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; }

/// Valid first two bytes of a multi-byte character.  The range of the second excludes overlong forms, surrogates and values
/// beyond Unicode.
struct TLeadRow {
  unsigned char First, Last;
  std::size_t Size;
  unsigned char SecondFrom, SecondTo;
};
constexpr TLeadRow kLeads[] = {
    {0xC2, 0xDF, 2, 0x80, 0xBF}, {0xE0, 0xE0, 3, 0xA0, 0xBF}, {0xE1, 0xEC, 3, 0x80, 0xBF},
    {0xED, 0xED, 3, 0x80, 0x9F}, {0xEE, 0xEF, 3, 0x80, 0xBF}, {0xF0, 0xF0, 4, 0x90, 0xBF},
    {0xF1, 0xF3, 4, 0x80, 0xBF}, {0xF4, 0xF4, 4, 0x80, 0x8F},
};

/// The length of the UTF-8 character at the start of `text`; 0 if there is none.
std::size_t CharacterSize(std::string_view text) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  if (byte(0) < 0x80) return 1;
  const auto row = std::ranges::find_if(
      kLeads, [&](const TLeadRow& lead) { return byte(0) >= lead.First && byte(0) <= lead.Last; });
  if (row == std::end(kLeads) || text.size() < row->Size) return 0;
  if (byte(1) < row->SecondFrom || byte(1) > row->SecondTo) return 0;
  const auto rest = text.substr(2, row->Size - 2);
  return std::all_of(rest.begin(), rest.end(), IsContinuation) ? row->Size : 0;
}

}  // namespace

std::string Format(std::string_view format, std::initializer_list<TFormatArg> args) {
  std::string result;
  auto arg = args.begin();
  for (std::size_t i = 0; i < format.size(); ++i) {
    const char letter = format[i] == '%' && i + 1 < format.size() ? format[i + 1] : '\0';
    const bool placeholder = (letter == 's' || letter == 'd') && arg != args.end();
    if (placeholder)
      result += ToText(*arg++);
    else
      result += format[i];
    if (placeholder || letter == '%') ++i;
  }
  return result;
}

std::string Trim(std::string_view text) {
  while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
  return std::string(text);
}

bool IsAscii(std::string_view text) { return std::ranges::all_of(text, IsAsciiChar); }

std::string FoldAsciiCase(std::string_view text) {
  std::string folded(text);
  std::ranges::transform(folded, folded.begin(), FoldAsciiChar);
  return folded;
}

bool SameText(std::string_view a, std::string_view b) {
  std::size_t i = 0;
  for (; i < a.size() && i < b.size() && IsAsciiChar(a[i]) && IsAsciiChar(b[i]); ++i)
    if (FoldAsciiChar(a[i]) != FoldAsciiChar(b[i])) return false;
  return FoldCase(a.substr(i)) == FoldCase(b.substr(i));
}

std::string PercentEncode(std::string_view text, bool (*mustEscape)(char c)) {
  std::string escaped;
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (mustEscape(c))
      escaped.append({'%', kHexDigits[byte / 16], kHexDigits[byte % 16]});
    else
      escaped += c;
  }
  return escaped;
}

std::string PercentDecode(std::string_view text,
                          const std::function<bool(char c, std::size_t at)>& isEscape) {
  std::string plain;
  for (std::size_t at = 0; at < text.size();) {
    const auto c = EscapeAt(text.substr(at));
    const bool decode = c && (!isEscape || isEscape(*c, at));
    plain += decode ? *c : text[at];
    at += decode ? 3 : 1;
  }
  return plain;
}

std::string ReplaceInvalidUtf8(std::string_view text, std::string (*decode)(std::string_view bytes)) {
  std::string repaired;
  for (std::size_t at = 0; at < text.size();) {
    const auto begin = at;
    std::size_t size = 0;
    while (at < text.size() && (size = CharacterSize(text.substr(at))) > 0) at += size;
    repaired += text.substr(begin, at - begin);
    const auto wrong = at;
    while (at < text.size() && CharacterSize(text.substr(at)) == 0) ++at;
    if (at > wrong) repaired += decode(text.substr(wrong, at - wrong));
  }
  return repaired;
}

std::string_view TruncateUtf8(std::string_view text, std::size_t bytes) {
  if (text.size() <= bytes) return text;
  auto end = bytes;
  while (end > 0 && bytes - end < 3 && IsContinuation(text[end])) --end;
  // More than three continuation bytes are not UTF-8; such text is truncated at exactly `bytes`.
  return text.substr(0, IsContinuation(text[end]) ? bytes : end);
}

}  // namespace kestrel
