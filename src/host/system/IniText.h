// INI text that is edited in place: everything except the changed keys is written back byte for byte.
//
//   ; a comment
//   [Section]
//   Key=value
//
// Values and the names of sections and keys are written literally if they can be read back that way, otherwise in double
// quotes.  Text for which neither works, such as text with line breaks, is written as %"...", where '%', '=', ']' and control
// characters are escaped as %XX (two upper-case hexadecimal digits).  On reading, surrounding blanks and one pair of double
// or single quotes are removed, as the Windows functions for such files do.
//
// A damaged line is neither blank nor a comment, section or key with value.  It is kept and ignored.  Keys after a section
// line without "]" belong to no section.
#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kestrel {

/// Sections and keys compare ignoring case.  Sections of the same name are merged; the first of equal keys counts.  The
/// section "" contains the keys before the first section line.
class TIniText {
 public:
  /// Whether %XX outside of %"..." is an escape.  Earlier versions of this program wrote control characters, percent signs
  /// and surrounding blanks that way.
  enum class TPercent { Literal, Escape };
  struct TDamage {
    std::size_t Line;  ///< counted from 1
    std::string Text;  ///< trimmed
  };

  explicit TIniText(std::string_view text = {}, TPercent percent = TPercent::Literal);
  /// Returns false for binary contents (with a NUL), which must not be parsed and written back.
  static bool IsText(std::string_view contents) { return contents.find('\0') == contents.npos; }

  /// The distinct section names in text order, without "".
  std::vector<std::string> Sections() const;
  bool HasSection(std::string_view section) const;
  /// The distinct keys of a section in text order.
  std::vector<std::string> Keys(std::string_view section) const;
  std::optional<std::string> Value(std::string_view section, std::string_view key) const;
  /// The values of all keys with that name.
  std::vector<std::string> Values(std::string_view section, std::string_view key) const;
  /// The first damaged line.
  std::optional<TDamage> Damage() const;

  // These return whether they changed anything.
  bool SetValue(std::string_view section, std::string_view key, std::string_view value);
  /// Replaces the values of all keys with that name.  The line of a value that keeps its position is not rewritten.
  bool SetValues(std::string_view section, std::string_view key, const std::vector<std::string>& values);
  bool DeleteKey(std::string_view section, std::string_view key) { return SetValues(section, key, {}); }
  /// Deletes the section with its keys.  Lines after its last key stay, because they may belong to the next section.
  bool DeleteSection(std::string_view section);

  std::string Text() const;

 private:
  enum class TKind { Blank, Comment, Section, Key, Damaged };
  static constexpr std::size_t kRoot = 0;
  static constexpr std::size_t kNone = static_cast<std::size_t>(-1);
  struct TLine {
    std::string Raw;  ///< with its line ending
    TKind Kind = TKind::Blank;
    std::size_t Section = kRoot;  ///< its number in sections_; kNone after a damaged section line
    std::string Name;             ///< of a section or key
    std::size_t ValueAt = 0;      ///< offset in Raw
    std::size_t ValueSize = 0;
  };

  TLine Parse(std::string_view raw) const;
  void Append(TLine line);
  void EndLine(TLine& line) const;
  std::string Decode(std::string_view text, std::string_view reserved) const;
  std::string EncodeValue(std::string_view value) const;
  TLine KeyLine(std::size_t section, std::string_view key, std::string_view value) const;

  std::size_t Find(std::string_view section) const;
  std::size_t FindOrAppend(std::string_view section);
  std::vector<std::size_t> KeyLines(std::string_view section, std::string_view key) const;
  std::string ValueOf(const TLine& line) const;
  void Replace(TLine& line, std::string_view value);
  void Insert(std::size_t at, std::vector<TLine> lines);
  std::size_t EndOf(std::size_t section) const;

  TPercent percent_;
  bool byteOrderMark_ = false;
  std::string lineEnd_;
  std::vector<TLine> lines_;
  std::map<std::string, std::size_t> sections_;  ///< numbers by folded name; entries of deleted sections stay
};

}  // namespace kestrel
