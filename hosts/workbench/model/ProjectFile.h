// Project (".qvxproj") and project group (".qvxgroup") files: ordered lists of paths in INI form.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "system/IniText.h"

namespace kestrel::workbench {

inline constexpr const char* kProjectExt = ".qvxproj";
inline constexpr const char* kGroupExt = ".qvxgroup";
inline constexpr const char* kUnitExt = ".pas";
inline constexpr const char* kFormExt = ".kfm";

/// Base of both kinds of file. Paths are stored relative to the file's directory, with '/'. A change keeps all other
/// bytes of the text.
class TPathListFile {
 public:
  /// Names of the head section, the list section and the list's key.
  struct TLayout {
    const char* Head;
    const char* List;
    const char* Item;
  };

  const std::vector<std::string>& Items() const { return items_; }
  std::vector<std::string>& Items() { return items_; }
  std::string Text() const;

 protected:
  explicit TPathListFile(const TLayout& layout);
  /// Throws std::runtime_error with a sentence for the user if `text` does not have this layout.
  void Read(std::string_view text);
  std::string Head(const char* key) const;
  void SetHead(const char* key, const std::string& value);

 private:
  const TLayout* layout_;
  TIniText ini_{{}, TIniText::TPercent::Escape};
  std::vector<std::string> items_;
};

class TProjectFile : public TPathListFile {
 public:
  TProjectFile();
  static TProjectFile Parse(std::string_view text);
};

class TGroupFile : public TPathListFile {
 public:
  TGroupFile();
  static TGroupFile Parse(std::string_view text);
  /// The stored path of the active project; empty for none.
  std::string Active() const { return Head("Active"); }
  void SetActive(const std::string& stored) { SetHead("Active", stored); }
};

/// Convert an absolute path to the form stored in a file in directory `base`, and back. Paths on another drive or share
/// stay absolute.
std::string ToStoredPath(const std::string& base, const std::string& path);
std::string FromStoredPath(const std::string& base, const std::string& stored);

}  // namespace kestrel::workbench
