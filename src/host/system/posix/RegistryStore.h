// One file of the registry store: INI text, one section per key path, one line per value.
//
//   [Software\SourceCodeControlProvider\InstalledSCCProviders]
//   Subversion=Software\Subversion\SCC
//
// IniText.h says how names and values are written.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "system/IniText.h"

namespace kestrel {

/// The contents of one store file.  Keys and names compare ignoring case; order is the file's.
class TRegistryStore {
 public:
  /// Damaged lines of the INI text are kept and ignored.
  explicit TRegistryStore(const std::string& text);
  /// What can be read of the file; nothing of it when it is missing, unreadable or no text.
  static TRegistryStore Read(const std::string& path);
  /// Reads the file, lets `change` work on it and writes it back when that answers true.  Others that update it wait
  /// meanwhile.  Creates the file and its directory when missing.  Returns what `change` answered.  Throws
  /// std::runtime_error with a sentence that names the file when it cannot be read or written.
  static bool Update(const std::string& path, const std::function<bool(TRegistryStore&)>& change);

  /// A key exists when it has a section or lies above one.
  bool HasKey(const std::string& key) const;
  std::optional<std::string> Value(const std::string& key, const std::string& name) const;
  std::vector<std::string> ValueNames(const std::string& key) const;

  // These answer whether they changed anything.
  bool SetValue(const std::string& key, const std::string& name, const std::string& value);
  bool DeleteValue(const std::string& key, const std::string& name);
  /// Deletes the key with everything below it.  `key` must not be a root.
  bool DeleteKey(const std::string& key);

  std::string Text() const { return ini_.Text(); }

 private:
  std::vector<std::string> SectionsAtOrBelow(const std::string& key) const;

  TIniText ini_;
};

}  // namespace kestrel
