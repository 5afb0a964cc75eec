#include "system/System.h"

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <system_error>

#include "system/Paths.h"

namespace kestrel {

namespace fs = std::filesystem;

namespace {

constexpr mode_t kAllWrite = S_IWUSR | S_IWGRP | S_IWOTH;

/// Counts characters, not bytes.
std::string TextIfFits(std::string text, std::size_t bufferSize) {
  const auto begins = [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; };
  return static_cast<std::size_t>(std::ranges::count_if(text, begins)) < bufferSize ? text : std::string();
}

std::optional<mode_t> ModeOf(const std::string& path) {
  struct stat info {};
  if (stat(path.c_str(), &info) != 0) return std::nullopt;
  return info.st_mode;
}

std::function<void(TBeep)>& BeepHandler() {
  static std::function<void(TBeep)> handler;
  return handler;
}

}  // namespace

std::vector<std::string> CommandLineArguments(int argc, char** argv) { return {argv + 1, argv + argc}; }

std::string ProgramFolder() { return fs::read_symlink("/proc/self/exe").parent_path().string(); }

std::string GetUserNameText(std::size_t bufferSize) {
  std::vector<char> buffer(16384);
  passwd entry{};
  passwd* found = nullptr;
  if (getpwuid_r(getuid(), &entry, buffer.data(), buffer.size(), &found) == 0 && found)
    return TextIfFits(found->pw_name, bufferSize);
  // In containers the user id often has no entry in the user database.
  const char* name = std::getenv("USER");
  return TextIfFits(name ? name : "", bufferSize);
}

std::string GetCurrentDirectoryText(std::size_t bufferSize) {
  std::error_code ignored;
  return TextIfFits(fs::current_path(ignored).string(), bufferSize);
}

std::string FullPath(const std::string& path) {
  return path.empty() ? path : NormalizePath(ResolvePath(GetCurrentDirectoryText(std::string::npos), path));
}

bool FileExists(const std::string& path) {
  const auto mode = ModeOf(path);
  return mode && !S_ISDIR(*mode);
}

bool DirectoryExists(const std::string& path) {
  const auto mode = ModeOf(path);
  return mode && S_ISDIR(*mode);
}

std::uint32_t GetFileAttributesOf(const std::string& path) {
  const auto mode = ModeOf(path);
  if (!mode) return 0;
  return *mode & S_IWUSR ? faArchive : faArchive | faReadOnly;
}

bool SetFileAttributesOf(const std::string& path, std::uint32_t attributes) {
  const auto mode = ModeOf(path);
  if (!mode) return false;
  // Read-only applies to all users; writable to the owner only.
  const mode_t wanted = attributes & faReadOnly ? *mode & ~kAllWrite : *mode | S_IWUSR;
  return wanted == *mode || chmod(path.c_str(), wanted & 07777) == 0;
}

void MessageBeep(TBeep kind) {
  if (BeepHandler()) BeepHandler()(kind);
}

void SetBeepHandler(std::function<void(TBeep)> handler) { BeepHandler() = std::move(handler); }

}  // namespace kestrel
