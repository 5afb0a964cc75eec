// File names: text rules only, nothing here touches a disk.  One set for the whole system, so that a rule (what an
// extension is, which delimiter ends a directory) is stated once.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// The platform's path delimiter.
extern const char PathDelim;
bool IsPathDelim(char c);
/// How many bytes of `path` name its root (1 for "/x"); 0 when it is relative.
std::size_t RootLength(std::string_view path);
/// Whether the platform takes both spellings for the same name (POSIX: only when they are equal).
bool SameFileName(std::string_view a, std::string_view b);

/// The part behind the last delimiter.
std::string ExtractFileName(std::string_view path);
/// The directory without a trailing delimiter, except that a root keeps its own; empty without a directory part.
std::string ExtractFileDir(std::string_view path);
/// From the last dot of the file name on, dot included; empty when the name has none.
std::string ExtractFileExt(std::string_view path);
/// Replaces that part by `extension` (which need not begin with a dot), or appends it.
std::string ChangeFileExt(std::string_view path, std::string_view extension);
/// `path` with a delimiter at its end; the empty path becomes a lone delimiter.
std::string IncludeTrailingPathDelimiter(std::string_view path);
/// `path` without delimiters at its end, except that a root keeps its own.
std::string ExcludeTrailingPathDelimiter(std::string_view path);
bool IsAbsolutePath(std::string_view path);
/// `path` as seen from directory `base`, when it lies below it (compared as the platform compares names); otherwise
/// `path` unchanged.
std::string RelativePath(std::string_view base, std::string_view path);
