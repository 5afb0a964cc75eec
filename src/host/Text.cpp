#include "host/Text.h"

namespace {

std::string ToText(const TFormatArg& arg) {
  const auto* text = std::get_if<std::string>(&arg);
  return text ? *text : std::to_string(std::get<long long>(arg));
}

bool IsBlank(char c) { return static_cast<unsigned char>(c) <= ' '; }

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

bool SameText(std::string_view a, std::string_view b) { return a == b || FoldCase(a) == FoldCase(b); }
