#include "system/System.h"

#include <array>
#include <memory>

#include "system/Paths.h"
#include "system/windows/Api.h"
#include "system/windows/Wide.h"

namespace kestrel {

namespace {

constexpr std::size_t kLongestPath = 32768;

/// Counts UTF-16 units, not bytes.
std::string TextIfFits(const std::wstring& text, std::size_t bufferSize) {
  return text.size() < bufferSize ? FromWide(text) : std::string();
}

DWORD AttributesOf(const std::string& path) { return GetFileAttributesW(ToWideFileName(path).c_str()); }

}  // namespace

std::vector<std::string> CommandLineArguments(int, char**) {
  int count = 0;
  const std::unique_ptr<wchar_t*, TLocalFree> words(CommandLineToArgvW(GetCommandLineW(), &count));
  std::vector<std::string> arguments;
  for (int i = 1; i < count; ++i) arguments.push_back(FromWide(words.get()[i]));
  return arguments;
}

std::string ProgramFolder() {
  std::wstring name(kLongestPath, L'\0');
  name.resize(GetModuleFileNameW(nullptr, name.data(), static_cast<DWORD>(name.size())));
  return ExtractFileDir(FromWide(name));
}

std::string GetUserNameText(std::size_t bufferSize) {
  std::array<wchar_t, UNLEN + 1> name{};
  auto size = static_cast<DWORD>(name.size());
  return GetUserNameW(name.data(), &size) ? TextIfFits(name.data(), bufferSize) : std::string();
}

std::string GetCurrentDirectoryText(std::size_t bufferSize) {
  std::wstring directory(GetCurrentDirectoryW(0, nullptr), L'\0');
  directory.resize(GetCurrentDirectoryW(static_cast<DWORD>(directory.size()), directory.data()));
  return TextIfFits(directory, bufferSize);
}

std::string FullPath(const std::string& path) {
  const auto name = ToWide(path);
  std::wstring full(GetFullPathNameW(name.c_str(), 0, nullptr, nullptr), L'\0');
  full.resize(GetFullPathNameW(name.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr));
  return NormalizePath(FromWide(full));
}

bool FileExists(const std::string& path) {
  const auto attributes = AttributesOf(path);
  return attributes != INVALID_FILE_ATTRIBUTES && !(attributes & FILE_ATTRIBUTE_DIRECTORY);
}

bool DirectoryExists(const std::string& path) {
  const auto attributes = AttributesOf(path);
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY);
}

std::uint32_t GetFileAttributesOf(const std::string& path) {
  const auto attributes = AttributesOf(path);
  return attributes == INVALID_FILE_ATTRIBUTES ? 0 : attributes & (faReadOnly | faArchive);
}

bool SetFileAttributesOf(const std::string& path, std::uint32_t attributes) {
  return SetFileAttributesW(ToWideFileName(path).c_str(), attributes ? attributes : FILE_ATTRIBUTE_NORMAL) !=
         0;
}

void MessageBeep(TBeep kind) { ::MessageBeep(static_cast<UINT>(kind)); }

// Not needed: the system sounds beeps itself.
void SetBeepHandler(std::function<void(TBeep)>) {}

}  // namespace kestrel
