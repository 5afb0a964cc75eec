#include "system/posix/RegistryStore.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <stdexcept>
#include <string_view>
#include <system_error>

#include "system/Paths.h"
#include "system/RegistryKey.h"
#include "system/System.h"
#include "system/Text.h"

namespace kestrel {

namespace {

bool IsAtOrBelow(std::string_view section, std::string_view foldedKey) {
  const auto folded = FoldCase(section);
  if (foldedKey.empty() || folded == foldedKey) return true;
  return folded.size() > foldedKey.size() && folded.starts_with(foldedKey) &&
         folded[foldedKey.size()] == '\\';
}

// ---------------------------------------------------------------------------------------------------- files

/// Scoped: excludes updates of the directory's files by other processes and threads.  Has no effect on file systems
/// without locks; there the last writer wins.
class TDirectoryLock {
 public:
  explicit TDirectoryLock(const std::string& directory)
      : descriptor_(open(directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
    while (descriptor_ >= 0 && flock(descriptor_, LOCK_EX) != 0 && errno == EINTR) continue;
  }
  TDirectoryLock(const TDirectoryLock&) = delete;
  TDirectoryLock& operator=(const TDirectoryLock&) = delete;
  ~TDirectoryLock() {
    if (descriptor_ >= 0) close(descriptor_);
  }

 private:
  int descriptor_;
};

void MakeDirectory(const std::string& directory) {
  std::error_code failed;
  std::filesystem::create_directories(directory, failed);
  if (failed) throw std::runtime_error("Cannot create " + directory + ": " + failed.message());
}

/// The contents before an update.  A binary file, which may result from a disk failure, is first copied to ".broken" and
/// then treated as empty.
std::string ReadForUpdate(const std::string& path) {
  if (!FileExists(path)) return {};
  auto text = ReadWholeFile(path);
  if (TIniText::IsText(text)) return text;
  WriteFileAtomically(path + ".broken", text);
  return {};
}

}  // namespace

TRegistryStore::TRegistryStore(const std::string& text) : ini_(text, TIniText::TPercent::Escape) {}

TRegistryStore TRegistryStore::Read(const std::string& path) {
  try {
    const auto text = FileExists(path) ? ReadWholeFile(path) : std::string();
    return TRegistryStore(TIniText::IsText(text) ? text : std::string());
  } catch (const std::runtime_error&) {
    return TRegistryStore({});
  }
}

bool TRegistryStore::Update(const std::string& path, const std::function<bool(TRegistryStore&)>& change) {
  const auto directory = ExtractFileDir(path);
  MakeDirectory(directory);
  const TDirectoryLock lock(directory);
  TRegistryStore store(ReadForUpdate(path));
  const bool changed = change(store);
  if (changed) WriteFileAtomically(path, store.Text());
  return changed;
}

std::vector<std::string> TRegistryStore::SectionsAtOrBelow(const std::string& key) const {
  auto sections = ini_.Sections();
  const auto folded = FoldCase(CanonicalKey(key));
  std::erase_if(sections, [&](const std::string& section) { return !IsAtOrBelow(section, folded); });
  return sections;
}

bool TRegistryStore::HasKey(const std::string& key) const {
  return CanonicalKey(key).empty() || !SectionsAtOrBelow(key).empty();
}

std::optional<std::string> TRegistryStore::Value(const std::string& key, const std::string& name) const {
  return ini_.Value(CanonicalKey(key), name);
}

std::vector<std::string> TRegistryStore::ValueNames(const std::string& key) const {
  return ini_.Keys(CanonicalKey(key));
}

bool TRegistryStore::SetValue(const std::string& key, const std::string& name, const std::string& value) {
  return ini_.SetValue(CanonicalKey(key), name, value);
}

bool TRegistryStore::DeleteValue(const std::string& key, const std::string& name) {
  return ini_.DeleteKey(CanonicalKey(key), name);
}

bool TRegistryStore::DeleteKey(const std::string& key) {
  const auto sections = SectionsAtOrBelow(key);
  for (const auto& section : sections) ini_.DeleteSection(section);
  return !sections.empty();
}

}  // namespace kestrel
