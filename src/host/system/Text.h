// Text helpers: resource strings, printf-like formatting and case-ignoring comparison.  Text is UTF-8 on every platform.
#pragma once

#include <ctime>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace kestrel {

/// A text shown to the user.  Each unit keeps its own in <Unit>Strings.h, so that a translation finds them there, as
/// `inline constexpr TResString sName{"..."};` in the namespace of its part.
struct TResString {
  const char* Text;
  operator std::string() const { return Text; }
  operator std::string_view() const { return Text; }
  std::string str() const { return Text; }
};

/// How lines end in the platform's text files.
extern const std::string_view LineEnd;

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
std::string_view TruncateUtf8(std::string_view text, std::size_t bytes);

/// `text` with every byte that is part of no UTF-8 character replaced by decode(byte run).
std::string ReplaceInvalidUtf8(std::string_view text, std::string (*decode)(std::string_view bytes));

// What 8-bit programs of other people take and give: providers.  Their bytes are UTF-8 on POSIX and where Windows runs this
// program with UTF-8 as its code page; otherwise text of the active code page.

/// Nothing when the active code page lacks a character of `text`.
std::optional<std::string> ToCodePageExact(std::string_view text);
/// The same for a text that is only read: what the page lacks becomes a character like it, or a question mark.
std::string ToCodePageLossy(std::string_view text);
/// A text that is only read: always UTF-8, and nothing of it missing.  A program that was told to write UTF-8 may still
/// have texts of its own in it, so bytes that are none are read as the page they most likely come from: that of the
/// system's locale on Windows, 1252 elsewhere.
std::string FromCodePageLossy(std::string_view text);
/// A name or path that will go back: ToCodePageExact() of the result is `name` again, or there is no result.  Where the
/// bytes are to be UTF-8 a name is not touched: a file name may be any bytes, and so may be the result.
std::optional<std::string> FromCodePageExact(std::string_view name);
/// At most `bytes` bytes of such a text, cut at a character border.
std::string_view TruncateInCodePage(std::string_view text, std::size_t bytes);

/// A moment in the locale's default date and time format.
std::string DateTimeToStr(std::time_t when);

}  // namespace kestrel
