// Resource strings, formatting, comparison and code page conversions.  Text is UTF-8 on every platform.
#pragma once

#include <ctime>
#include <functional>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace kestrel {

/// A text shown to the user.  Each unit defines its own in <Unit>Strings.h as `inline constexpr TResString sName{"..."};`
/// in the namespace of its part.
struct TResString {
  const char* Text;
  operator std::string() const { return Text; }
  operator std::string_view() const { return Text; }
  std::string str() const { return Text; }
};

/// The line ending of the platform's text files.
extern const std::string_view LineEnd;

/// One argument of Format().
using TFormatArg = std::variant<std::string, long long>;

/// Replaces %s and %d by the arguments in turn and "%%" by a percent sign.  Never fails: a placeholder without an argument
/// or with another letter is kept as it is.
std::string Format(std::string_view format, std::initializer_list<TFormatArg> args);

/// Removes spaces, tabs and control characters from both ends.
std::string Trim(std::string_view text);

/// Folds case for comparison: results are equal if the texts are equal ignoring case.  Bytes that are not valid UTF-8 are
/// kept.
std::string FoldCase(std::string_view text);
bool SameText(std::string_view a, std::string_view b);
bool IsAscii(std::string_view text);
/// FoldCase() for ASCII letters only.
std::string FoldAsciiCase(std::string_view text);

/// Replaces each character for which mustEscape(c) returns true by %XX (two upper-case hexadecimal digits).
std::string PercentEncode(std::string_view text, bool (*mustEscape)(char c));
/// Decodes the escapes %XX for which isEscape(character, offset) returns true; without a function all of them.
std::string PercentDecode(std::string_view text,
                          const std::function<bool(char c, std::size_t at)>& isEscape = {});

/// Truncates to at most `bytes` bytes without splitting a character.
std::string_view TruncateUtf8(std::string_view text, std::size_t bytes);

/// Replaces each run of bytes that are not valid UTF-8 by decode(run).
std::string ReplaceInvalidUtf8(std::string_view text, std::string (*decode)(std::string_view bytes));

// Conversions for 8-bit interfaces, that is, for providers.  Their text is in the active code page on Windows, which may be
// UTF-8, and UTF-8 on POSIX.

/// Empty if the active code page lacks a character of `text`.
std::optional<std::string> ToCodePageExact(std::string_view text);
/// For display text: a character that the code page lacks is replaced by a similar one or by a question mark.
std::string ToCodePageLossy(std::string_view text);
/// Converts provider text for display; never fails, and the result is UTF-8.  Where the code page is UTF-8, invalid bytes
/// are decoded as the code page of the system's locale (Windows) or as CP-1252 (POSIX).
std::string FromCodePageLossy(std::string_view text);
/// Converts a name or path that is passed back later.  Empty unless ToCodePageExact() of the result is `name` again.  Where
/// the code page is UTF-8 the bytes are returned unchanged, valid or not.
std::optional<std::string> FromCodePageExact(std::string_view name);
/// Truncates text in the active code page to at most `bytes` bytes without splitting a character.
std::string_view TruncateInCodePage(std::string_view text, std::size_t bytes);

/// A point in time in the locale's default date and time format.
std::string DateTimeToStr(std::time_t when);

}  // namespace kestrel
