// The project mapping file: an INI file beside the project that binds it to a provider project, one section per provider
// display name.  Changing one key preserves every other byte.
#pragma once

#include <string>
#include <vector>

#include "system/IniText.h"

namespace kestrel::addin {

inline constexpr const char* kMappingExtension = ".cdp";

// Keys of a provider's section.
inline constexpr const char* kMapProjName = "ProjName";
inline constexpr const char* kMapAuxProjPath = "AuxProjPath";
inline constexpr const char* kMapUserName = "UserName";

/// The mapping file of a project file: same directory and name, other extension.  A project file name without a
/// directory gives a name that begins with the delimiter.
std::string MappingFileName(const std::string& projectFile);

class TMappingFile {
 public:
  /// Reads the file; a missing one is empty.  Throws std::runtime_error, naming the file, when it cannot be read or is
  /// binary.
  explicit TMappingFile(std::string path);

  /// Section names in the order of the file.
  std::vector<std::string> Sections() const { return ini_.Sections(); }
  bool HasSection(const std::string& section) const { return ini_.HasSection(section); }
  bool HasKey(const std::string& section, const std::string& key) const {
    return ini_.Value(section, key).has_value();
  }
  /// Describes the first damaged line; empty without damage.
  std::string Damage() const;
  /// Empty when section or key is missing.
  std::string Read(const std::string& section, const std::string& key) const {
    return ini_.Value(section, key).value_or("");
  }
  /// Re-reads the file, which others write too, changes one key and replaces the file atomically.  Writes nothing when the
  /// key already has that value.  Throws std::runtime_error, naming the file, when it cannot be read or stored or is
  /// damaged.
  void Write(const std::string& section, const std::string& key, const std::string& value);

 private:
  std::string path_;
  TIniText ini_;
};

}  // namespace kestrel::addin
