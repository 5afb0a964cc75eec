// INI text that is changed in place: what was read is written back byte for byte, except for the keys that changed.
//
//   ; a comment
//   [Section]
//   Key=value
//
// How a text is written, names of sections and keys included: as it stands, if it reads back as itself; otherwise in
// double quotes; and where that does not help either, as in a text with line breaks, in %"...", in which '%', '=', ']' and
// control characters stand as %XX (two upper-case hexadecimal digits).  Blanks around a text do not belong to it, and one
// pair of quotes, double or single, is taken off, as Windows' own functions for such files do.
//
// A damaged line is one that is neither blank, comment, section nor key and value.  It is kept and means nothing; keys
// below a section line without its "]" belong to no section.
#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kestrel {

/// Sections and keys compare ignoring case.  Sections of one name are one section, and the first of equal keys holds.
/// The section "" holds what stands before the first section line.
class TIniText {
 public:
  /// What %XX means outside of %"...": nothing special, or what it stands for, as earlier versions of this program wrote
  /// control characters, percent signs and blanks at the ends of a text.
  enum class TPercent { Literal, Escape };
  struct TDamage {
    std::size_t Line;  ///< counted from 1
    std::string Text;  ///< without blanks around it
  };

  explicit TIniText(std::string_view text = {}, TPercent percent = TPercent::Literal);
  /// False for contents that must not be taken for INI text, and so not be written again: they hold a NUL.
  static bool IsText(std::string_view contents) { return contents.find('\0') == contents.npos; }

  /// In the order of the text, each once, without "".
  std::vector<std::string> Sections() const;
  bool HasSection(std::string_view section) const;
  /// In the order of the text, equal ones once.
  std::vector<std::string> Keys(std::string_view section) const;
  std::optional<std::string> Value(std::string_view section, std::string_view key) const;
  /// The values of all keys of that name.
  std::vector<std::string> Values(std::string_view section, std::string_view key) const;
  /// The first damaged line.
  std::optional<TDamage> Damage() const;

  // These answer whether they changed anything.
  bool SetValue(std::string_view section, std::string_view key, std::string_view value);
  /// Makes `values` the values of all keys of that name.  Lines of values that stay where they are stay as they are.
  bool SetValues(std::string_view section, std::string_view key, const std::vector<std::string>& values);
  bool DeleteKey(std::string_view section, std::string_view key) { return SetValues(section, key, {}); }
  /// Deletes the section with its keys; what stands behind its last key stays, as it may belong to the next section.
  bool DeleteSection(std::string_view section);

  std::string Text() const;

 private:
  enum class TKind { Blank, Comment, Section, Key, Damaged };
  static constexpr std::size_t kRoot = 0;
  static constexpr std::size_t kNone = static_cast<std::size_t>(-1);
  struct TLine {
    std::string Raw;  ///< with its end
    TKind Kind = TKind::Blank;
    std::size_t Section = kRoot;  ///< its number in sections_; kNone below a damaged section line
    std::string Name;             ///< of a section or key
    std::size_t ValueAt = 0;      ///< in Raw
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
  std::map<std::string, std::size_t> sections_;  ///< numbers by folded name; deleted ones stay
};

}  // namespace kestrel
