// The project mapping file: an INI file beside the project that binds it to a provider project, one section per
// provider display name.  Rewriting keeps order, comments and everything it does not understand.
#pragma once

#include <memory>
#include <string>
#include <vector>

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
  ~TMappingFile();

  /// Section names in the order of the file.
  std::vector<std::string> Sections() const;
  bool HasSection(const std::string& section) const;
  bool HasKey(const std::string& section, const std::string& key) const;
  /// Empty, or a sentence about the first line that is neither header, comment nor key and value.
  std::string Damage() const;
  /// Empty when section or key is missing.
  std::string Read(const std::string& section, const std::string& key) const;
  /// Changes one key and stores the file at once, wholly or not at all.  Does not touch the disk when the key has that
  /// value already.  Throws std::runtime_error with a sentence that names the file when it cannot be stored, or when
  /// rewriting it would lose a damaged line.
  void Write(const std::string& section, const std::string& key, const std::string& value);

 private:
  struct TIni;
  std::string path_;
  std::string text_;
  std::unique_ptr<TIni> ini_;
};
