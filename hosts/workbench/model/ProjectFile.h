// The texts of project (".qvxproj") and project group (".qvxgroup") files: ordered lists of paths in INI form.
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

/// What both kinds of file have in common.  Paths are stored relative to the file's directory, with '/'.
/// A change leaves every other byte of the text as it is.
class TPathListFile {
 public:
  /// Each kind's section and key names, its list's included.
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
  /// Throws std::runtime_error with a sentence for the user when `text` is not of this layout.
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

/// An absolute path as a file in directory `base` stores it, and back.  Paths on another drive or share stay absolute.
std::string ToStoredPath(const std::string& base, const std::string& path);
std::string FromStoredPath(const std::string& base, const std::string& stored);

}  // namespace kestrel::workbench
