#include "system/Text.h"

#include <array>
#include <utility>

#include "system/windows/Api.h"
#include "system/windows/Wide.h"

namespace kestrel {

const std::string_view LineEnd = "\r\n";

namespace {

/// With the flag MB_ERR_INVALID_CHARS the result is empty if `text` is invalid in the code page; without it invalid bytes
/// become replacement characters.
std::wstring Decode(UINT codePage, DWORD flags, std::string_view text) {
  std::wstring wide(text.size(), L'\0');
  wide.resize(static_cast<std::size_t>(MultiByteToWideChar(codePage, flags, text.data(),
                                                           static_cast<int>(text.size()), wide.data(),
                                                           static_cast<int>(wide.size()))));
  return wide;
}

std::wstring DecodeUtf8(std::string_view text) { return Decode(CP_UTF8, MB_ERR_INVALID_CHARS, text); }

/// Encodes `text` in the active code page; sets `lost` if a character is missing there.
std::string Encode(DWORD flags, std::wstring_view text, bool& lost) {
  BOOL replaced = FALSE;
  std::string narrow(text.size() * 4, '\0');
  narrow.resize(static_cast<std::size_t>(
      WideCharToMultiByte(CP_ACP, flags, text.data(), static_cast<int>(text.size()), narrow.data(),
                          static_cast<int>(narrow.size()), nullptr, &replaced)));
  lost = replaced;
  return narrow;
}

/// Whether `text` needs no conversion: it is ASCII, or the code page is UTF-8.
bool IsSameInCodePage(std::string_view text) { return GetACP() == CP_UTF8 || IsAscii(text); }

/// The code page of the system's locale, also if the program's manifest sets UTF-8.
UINT LocalePage() {
  DWORD page = 0;
  GetLocaleInfoW(LOCALE_SYSTEM_DEFAULT, LOCALE_IDEFAULTANSICODEPAGE | LOCALE_RETURN_NUMBER,
                 reinterpret_cast<wchar_t*>(&page), sizeof page / sizeof(wchar_t));
  return page == CP_ACP || page == CP_UTF8 ? 1252 : page;
}

std::string FromLocalePage(std::string_view text) { return FromWide(Decode(LocalePage(), 0, text)); }

bool HasWideCharacters(UINT codePage) {
  CPINFO info{};
  return GetCPInfo(codePage, &info) && info.MaxCharSize > 1;
}

SYSTEMTIME LocalTime(std::time_t when) {
  // FILETIME counts units of 100 ns since 1601.
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
  auto wide = IsAscii(text) ? std::wstring() : DecodeUtf8(text);
  if (wide.empty()) return FoldAsciiCase(text);
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

std::optional<std::string> ToCodePageExact(std::string_view text) {
  if (IsSameInCodePage(text)) return std::string(text);
  const auto wide = DecodeUtf8(text);
  if (wide.empty()) return std::nullopt;
  bool lost = false;
  // Without "best fit" characters: a similar name would be another file.
  auto narrow = Encode(WC_NO_BEST_FIT_CHARS, wide, lost);
  return lost ? std::nullopt : std::optional(std::move(narrow));
}

std::string ToCodePageLossy(std::string_view text) {
  if (IsSameInCodePage(text)) return std::string(text);
  bool lost = false;
  return Encode(0, ToWide(text), lost);
}

std::string FromCodePageLossy(std::string_view text) {
  if (IsAscii(text)) return std::string(text);
  if (GetACP() != CP_UTF8) return FromWide(Decode(CP_ACP, 0, text));
  // In a multi-byte code page a trailing byte may be ASCII, so that runs of invalid bytes cannot be decoded separately.
  if (HasWideCharacters(LocalePage()) && DecodeUtf8(text).empty()) return FromLocalePage(text);
  return ReplaceInvalidUtf8(text, FromLocalePage);
}

std::optional<std::string> FromCodePageExact(std::string_view name) {
  if (IsSameInCodePage(name)) return std::string(name);
  auto text = FromCodePageLossy(name);
  return ToCodePageExact(text) == name ? std::optional(std::move(text)) : std::nullopt;
}

std::string_view TruncateInCodePage(std::string_view text, std::size_t bytes) {
  if (text.size() <= bytes) return text;
  if (GetACP() == CP_UTF8) return TruncateUtf8(text, bytes);
  std::size_t end = 0;
  for (std::size_t next = 0; next <= bytes;) {
    end = next;
    next += IsDBCSLeadByte(static_cast<BYTE>(text[next])) ? 2u : 1u;
  }
  return text.substr(0, end);
}

}  // namespace kestrel
