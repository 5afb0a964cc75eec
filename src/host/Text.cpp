#include "host/Text.h"

namespace {

std::string ToText(const TFormatArg& arg) {
  const auto* text = std::get_if<std::string>(&arg);
  return text ? *text : std::to_string(std::get<long long>(arg));
}

bool IsBlank(char c) { return static_cast<unsigned char>(c) <= ' '; }

bool IsContinuation(char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; }

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

bool SameText(std::string_view a, std::string_view b) {
  const auto ascii = [](char c) { return static_cast<unsigned char>(c) < 0x80; };
  const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; };
  std::size_t i = 0;
  for (; i < a.size() && i < b.size() && ascii(a[i]) && ascii(b[i]); ++i)
    if (lower(a[i]) != lower(b[i])) return false;
  return FoldCase(a.substr(i)) == FoldCase(b.substr(i));
}

std::string_view CutAtCharacter(std::string_view text, std::size_t bytes) {
  if (text.size() <= bytes) return text;
  auto end = bytes;
  while (end > 0 && bytes - end < 3 && IsContinuation(text[end])) --end;
  // More than three continuation bytes in a row are no character: such text is cut where it was asked for.
  return text.substr(0, IsContinuation(text[end]) ? bytes : end);
}
