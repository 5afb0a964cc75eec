#include "system/Text.h"

#include <locale.h>
#include <wctype.h>

#include <array>
#include <cwchar>

namespace kestrel {

const std::string_view LineEnd = "\n";

namespace {

/// Scoped: makes the character functions of this thread use UTF-8, whatever the program's locale.
class TUtf8Scope {
 public:
  TUtf8Scope() : before_(uselocale(Locale())) {}
  TUtf8Scope(const TUtf8Scope&) = delete;
  TUtf8Scope& operator=(const TUtf8Scope&) = delete;
  ~TUtf8Scope() { uselocale(before_); }

  /// Null on a system without it: then only ASCII letters fold.
  static locale_t Locale() {
    static const locale_t utf8 = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
    return utf8;
  }

 private:
  locale_t before_;
};

/// Appends the first character of `text` in lower case and returns its length in bytes.  An invalid byte is kept.
std::size_t AppendFolded(std::string& folded, std::string_view text) {
  std::mbstate_t state{};
  wchar_t wide = 0;
  const auto used = IsAscii(text.substr(0, 1)) ? 0 : std::mbrtowc(&wide, text.data(), text.size(), &state);
  if (used == 0 || used > text.size()) {
    folded += FoldAsciiCase(text.substr(0, 1));
    return 1;
  }
  std::array<char, 16> bytes{};
  state = {};
  const auto lower = static_cast<wchar_t>(towlower_l(static_cast<wint_t>(wide), TUtf8Scope::Locale()));
  folded.append(bytes.data(), std::wcrtomb(bytes.data(), lower, &state));
  return used;
}

// The characters in which code page 1252 differs from ISO 8859-1.  Five are unassigned and stay control characters.
constexpr std::array<wchar_t, 32> k1252From80 = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

std::string FromPage1252(std::string_view bytes) {
  std::string text;
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    const auto code = byte >= 0x80 && byte < 0xA0 ? k1252From80[byte - 0x80u] : static_cast<wchar_t>(byte);
    if (code >= 0x800) text += static_cast<char>(0xE0 | code >> 12);
    text += static_cast<char>(code >= 0x800 ? 0x80 | (code >> 6 & 0x3F) : 0xC0 | code >> 6);
    text += static_cast<char>(0x80 | (code & 0x3F));
  }
  return text;
}

}  // namespace

std::string FoldCase(std::string_view text) {
  if (IsAscii(text) || !TUtf8Scope::Locale()) return FoldAsciiCase(text);
  std::string folded;
  const TUtf8Scope utf8;
  while (!text.empty()) text.remove_prefix(AppendFolded(folded, text));
  return folded;
}

std::string DateTimeToStr(std::time_t when) {
  std::tm local{};
  localtime_r(&when, &local);
  std::array<char, 256> text{};
// The locale's default format determines the number of digits of the year.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-y2k"
  return {text.data(), std::strftime(text.data(), text.size(), "%x %X", &local)};
#pragma GCC diagnostic pop
}

std::optional<std::string> ToCodePageExact(std::string_view text) { return std::string(text); }

std::string ToCodePageLossy(std::string_view text) { return std::string(text); }

std::string FromCodePageLossy(std::string_view text) { return ReplaceInvalidUtf8(text, FromPage1252); }

std::optional<std::string> FromCodePageExact(std::string_view name) { return std::string(name); }

std::string_view TruncateInCodePage(std::string_view text, std::size_t bytes) {
  return TruncateUtf8(text, bytes);
}

}  // namespace kestrel
