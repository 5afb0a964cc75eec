// Text helpers: resource strings, printf-like formatting and case-ignoring comparison.  Text is UTF-8 on every platform.
#pragma once

#include <ctime>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

/// A text shown to the user.  Each unit keeps its own in <Unit>Strings.h, so that a translation finds them there, as
/// `constexpr TResString sName{"..."};`, never `inline`: host, package and provider live in one process, the dynamic
/// linker makes one of equally named inline variables, and each would show the texts of another.
struct TResString {
  const char* Text;
  operator std::string() const { return Text; }
  operator std::string_view() const { return Text; }
  std::string str() const { return Text; }
};

/// One argument of Format.
using TFormatArg = std::variant<std::string, long long>;

/// Replaces %s and %d by the arguments in turn; "%%" is a percent sign.  A placeholder without an argument, or of
/// another letter, stays as it stands: a text never fails to format.
std::string Format(std::string_view format, std::initializer_list<TFormatArg> args);

/// `text` without blanks (spaces, tabs and control characters) at both ends.
std::string Trim(std::string_view text);

/// The text folded for comparison: equal results mean equal texts ignoring case.  Bytes that are not valid UTF-8 compare
/// as they stand.
std::string FoldCase(std::string_view text);
bool SameText(std::string_view a, std::string_view b);

/// At most `bytes` bytes of `text`, cut at a character border.
std::string_view CutAtCharacter(std::string_view text, std::size_t bytes);

// What 8-bit programs of other people take and give: providers.  The same text on POSIX and where Windows runs this program
// with UTF-8 as its code page; otherwise text of the active code page.

/// Nothing when the active code page lacks a character of `text`.
std::optional<std::string> ToSystemText(std::string_view text);
std::string FromSystemText(std::string_view text);

/// A moment in the locale's default date and time format.
std::string DateTimeToStr(std::time_t when);
