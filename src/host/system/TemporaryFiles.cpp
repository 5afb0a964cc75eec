#include "system/TemporaryFiles.h"

#include <atomic>
#include <charconv>
#include <chrono>
#include <filesystem>
#include <optional>
#include <string_view>
#include <system_error>
#include <vector>

#include "system/FileName.h"
#include "system/Paths.h"
#include "system/System.h"

namespace kestrel {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kPrefix = ".corvane-";
constexpr std::string_view kSuffix = ".tmp";

/// The process that created the file; empty if the name is not that of a temporary file.
std::optional<unsigned long> ProcessOf(std::string_view name) {
  if (!name.starts_with(kPrefix) || !name.ends_with(kSuffix)) return std::nullopt;
  unsigned long process = 0;
  const auto number = std::from_chars(name.data() + kPrefix.size(), name.data() + name.size(), process);
  return number.ec == std::errc() && *number.ptr == '-' ? std::optional(process) : std::nullopt;
}

bool IsOld(const fs::path& path) {
  std::error_code failed;
  const auto written = fs::last_write_time(path, failed);
  return !failed && fs::file_time_type::clock::now() - written > std::chrono::hours(1);
}

}  // namespace

std::string NewTemporaryName() {
  static std::atomic<unsigned> count{0};
  return std::string(kPrefix) + std::to_string(CurrentProcess()) + "-" + std::to_string(count++) +
         std::string(kSuffix);
}

void RemoveStaleTemporaryFiles(const std::string& directory) {
  const auto folder = directory.empty() ? std::string(".") : directory;
  std::vector<std::string> left;
  ForEachEntry(folder, [&](const TDirectoryEntry& entry) {
    const auto process = ProcessOf(entry.Name);
    if (!entry.IsDirectory && process && !IsProcessRunning(*process)) left.emplace_back(entry.Name);
  });
  for (const auto& name : left) {
    const auto path = ToFilePath(IncludeTrailingPathDelimiter(folder) + name);
    std::error_code ignored;
    if (IsOld(path)) fs::remove(path, ignored);
  }
}

}  // namespace kestrel
