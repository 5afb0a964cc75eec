#include "host/Text.h"

#include <locale.h>
#include <wctype.h>

#include <algorithm>
#include <array>
#include <cwchar>

namespace {

/// Makes this thread read and write UTF-8, whatever locale the program runs in.  Case tables need no more than the
/// character type.
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

bool IsAscii(char c) { return static_cast<unsigned char>(c) < 0x80; }
char FoldAscii(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

/// Appends the first character of `text` in lower case and returns how many bytes it took.  A byte that begins no
/// character is kept.
std::size_t AppendFolded(std::string& folded, std::string_view text) {
  std::mbstate_t state{};
  wchar_t wide = 0;
  const auto used = IsAscii(text.front()) ? 0 : std::mbrtowc(&wide, text.data(), text.size(), &state);
  if (used == 0 || used > text.size()) {
    folded += FoldAscii(text.front());
    return 1;
  }
  std::array<char, 16> bytes{};
  state = {};
  const auto lower = static_cast<wchar_t>(towlower_l(static_cast<wint_t>(wide), TUtf8Scope::Locale()));
  folded.append(bytes.data(), std::wcrtomb(bytes.data(), lower, &state));
  return used;
}

}  // namespace

std::string FoldCase(std::string_view text) {
  std::string folded(text);
  if (std::all_of(text.begin(), text.end(), IsAscii) || !TUtf8Scope::Locale()) {
    std::ranges::transform(folded, folded.begin(), FoldAscii);
    return folded;
  }
  folded.clear();
  const TUtf8Scope utf8;
  while (!text.empty()) text.remove_prefix(AppendFolded(folded, text));
  return folded;
}

std::string DateTimeToStr(std::time_t when) {
  std::tm local{};
  localtime_r(&when, &local);
  std::array<char, 256> text{};
// The locale decides about the digits of the year: that is what its default format means.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-y2k"
  return {text.data(), std::strftime(text.data(), text.size(), "%x %X", &local)};
#pragma GCC diagnostic pop
}

std::optional<std::string> ToSystemText(std::string_view text) { return std::string(text); }

std::string FromSystemText(std::string_view text) { return std::string(text); }
