// The project mapping file: an INI file beside the project that binds it to a provider project, one section per
// provider display name.  A change of one key leaves every other byte as it is.
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
  /// Reads the file; a missing one is empty.  Throws std::runtime_error with a sentence that names the file when it
  /// cannot be read or holds binary data.
  explicit TMappingFile(std::string path);

  /// Section names in the order of the file.
  std::vector<std::string> Sections() const;
  bool HasSection(const std::string& section) const;
  bool HasKey(const std::string& section, const std::string& key) const;
  /// Empty, or a sentence about the first damaged line.
  std::string Damage() const;
  /// Empty when section or key is missing.
  std::string Read(const std::string& section, const std::string& key) const;
  /// Reads the file again, as others write it too, changes one key and stores the file at once, wholly or not at all.
  /// Writes nothing when the key has that value already.  Throws std::runtime_error with a sentence that names the file
  /// when it cannot be read or stored, or has a damaged line.
  void Write(const std::string& section, const std::string& key, const std::string& value);

 private:
  std::string path_;
  TIniText ini_;
};

}  // namespace kestrel::addin
