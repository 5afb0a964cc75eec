#include "system/windows/Wide.h"

#include <algorithm>
#include <array>

#include "system/Paths.h"
#include "system/Text.h"
#include "system/windows/Api.h"

namespace kestrel {

namespace {

// Paths of folders must be shorter than 248 characters, so that an 8.3 name fits.
constexpr std::size_t kClassicLimit = 247;

}  // namespace

std::wstring ToWide(std::string_view text) {
  const auto bytes = static_cast<int>(text.size());
  std::wstring wide(text.size(), L'\0');
  wide.resize(static_cast<std::size_t>(
      MultiByteToWideChar(CP_UTF8, 0, text.data(), bytes, wide.data(), static_cast<int>(wide.size()))));
  return wide;
}

std::string FromWide(std::wstring_view text) {
  const auto units = static_cast<int>(text.size());
  std::string narrow(text.size() * 3, '\0');
  narrow.resize(static_cast<std::size_t>(WideCharToMultiByte(
      CP_UTF8, 0, text.data(), units, narrow.data(), static_cast<int>(narrow.size()), nullptr, nullptr)));
  return narrow;
}

std::wstring ToWideFileName(std::string_view path) {
  auto name = ToWide(path);
  std::ranges::replace(name, L'/', L'\\');
  if (name.size() <= kClassicLimit || !IsAbsolutePath(path) || name.starts_with(L"\\\\?\\")) return name;
  return name.starts_with(L"\\\\") ? L"\\\\?\\UNC" + name.substr(1) : L"\\\\?\\" + name;
}

std::string SystemMessage(unsigned long error) {
  std::array<wchar_t, 512> text;
  const auto size = FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, error,
                                   0, text.data(), static_cast<DWORD>(text.size()), nullptr);
  return size ? Trim(FromWide({text.data(), size})) : "error " + std::to_string(error);
}

}  // namespace kestrel
