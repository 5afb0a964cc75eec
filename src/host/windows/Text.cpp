#include "host/Text.h"

#include <algorithm>
#include <array>

#include "host/windows/Api.h"
#include "host/windows/Wide.h"

namespace {

bool IsAscii(char c) { return static_cast<unsigned char>(c) < 0x80; }
char FoldAscii(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

std::string FoldAsciiLetters(std::string_view text) {
  std::string folded(text);
  std::ranges::transform(folded, folded.begin(), FoldAscii);
  return folded;
}

/// Empty when a byte of `text` is no part of a character in that code page.
std::wstring Decode(UINT codePage, std::string_view text) {
  std::wstring wide(text.size(), L'\0');
  wide.resize(static_cast<std::size_t>(MultiByteToWideChar(codePage, MB_ERR_INVALID_CHARS, text.data(),
                                                           static_cast<int>(text.size()), wide.data(),
                                                           static_cast<int>(wide.size()))));
  return wide;
}

SYSTEMTIME LocalTime(std::time_t when) {
  // Counted in tenths of a microsecond since 1601.
  constexpr long long kSecond = 10'000'000;
  constexpr long long kUnixEpoch = 116'444'736'000'000'000;
  const ULARGE_INTEGER ticks{.QuadPart = static_cast<ULONGLONG>(when * kSecond + kUnixEpoch)};
  const FILETIME time{ticks.LowPart, ticks.HighPart};
  SYSTEMTIME universal{}, local{};
  FileTimeToSystemTime(&time, &universal);
  SystemTimeToTzSpecificLocalTime(nullptr, &universal, &local);
  return local;
}

}  // namespace

std::string FoldCase(std::string_view text) {
  if (std::all_of(text.begin(), text.end(), IsAscii)) return FoldAsciiLetters(text);
  auto wide = Decode(CP_UTF8, text);
  if (wide.empty()) return FoldAsciiLetters(text);
  const auto size = static_cast<int>(wide.size());
  LCMapStringEx(LOCALE_NAME_INVARIANT, LCMAP_LOWERCASE, wide.data(), size, wide.data(), size, nullptr,
                nullptr, 0);
  return FromWide(wide);
}

std::string DateTimeToStr(std::time_t when) {
  const auto local = LocalTime(when);
  std::array<wchar_t, 128> date{}, time{};
  GetDateFormatEx(LOCALE_NAME_USER_DEFAULT, DATE_SHORTDATE, &local, nullptr, date.data(),
                  static_cast<int>(date.size()), nullptr);
  GetTimeFormatEx(LOCALE_NAME_USER_DEFAULT, 0, &local, nullptr, time.data(), static_cast<int>(time.size()));
  return FromWide(date.data()) + " " + FromWide(time.data());
}

std::optional<std::string> ToSystemText(std::string_view text) {
  if (GetACP() == CP_UTF8 || std::all_of(text.begin(), text.end(), IsAscii)) return std::string(text);
  const auto wide = Decode(CP_UTF8, text);
  if (wide.empty()) return std::nullopt;
  const auto units = static_cast<int>(wide.size());
  BOOL lost = FALSE;
  std::string narrow(wide.size() * 4, '\0');
  // No "best fit": a name that only looks alike is another file.
  narrow.resize(static_cast<std::size_t>(WideCharToMultiByte(CP_ACP, WC_NO_BEST_FIT_CHARS, wide.data(), units,
                                                             narrow.data(), static_cast<int>(narrow.size()),
                                                             nullptr, &lost)));
  return lost ? std::nullopt : std::optional(narrow);
}

std::string FromSystemText(std::string_view text) {
  if (GetACP() == CP_UTF8 || std::all_of(text.begin(), text.end(), IsAscii)) return std::string(text);
  return FromWide(Decode(CP_ACP, text));
}
