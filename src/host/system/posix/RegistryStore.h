// One registry file: INI text with one section per key path and one line per value.
//
//   [Software\SourceCodeControlProvider\InstalledSCCProviders]
//   Subversion=Software\Subversion\SCC
//
// See IniText.h for the syntax.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "system/IniText.h"

namespace kestrel {

/// The contents of one registry file.  Keys and names compare ignoring case; lists are in file order.
class TRegistryStore {
 public:
  /// Damaged lines are kept and ignored.
  explicit TRegistryStore(const std::string& text);
  /// The contents of a file; empty if it is missing, unreadable or binary.
  static TRegistryStore Read(const std::string& path);
  /// Reads the file, calls `change` and writes the file back if `change` returned true; returns that.  Other updates wait
  /// meanwhile.  Creates a missing file and directory.  Throws std::runtime_error with a sentence that names the file if
  /// it cannot be read or written.
  static bool Update(const std::string& path, const std::function<bool(TRegistryStore&)>& change);

  /// A key exists if it has a section or is the parent of one.
  bool HasKey(const std::string& key) const;
  std::optional<std::string> Value(const std::string& key, const std::string& name) const;
  std::vector<std::string> ValueNames(const std::string& key) const;

  // These return whether they changed anything.
  bool SetValue(const std::string& key, const std::string& name, const std::string& value);
  bool DeleteValue(const std::string& key, const std::string& name);
  /// Deletes a key with its subkeys.  `key` must not be a root.
  bool DeleteKey(const std::string& key);

  std::string Text() const { return ini_.Text(); }

 private:
  std::vector<std::string> SectionsAtOrBelow(const std::string& key) const;

  TIniText ini_;
};

}  // namespace kestrel
