// File names: text rules only, nothing here touches a disk.  One set for the whole system, so that a rule (what an
// extension is, which delimiter ends a directory) is stated once.  The standard library's rules would not do: built for
// Windows it takes the root of a share, "\\server\share\", for names of folders.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace kestrel {

/// The platform's path delimiter.
extern const char PathDelim;
bool IsPathDelim(char c);
/// How many bytes of `path` name its root (1 for "/x"); 0 when it is relative.
std::size_t RootLength(std::string_view path);
/// The one spelling for what RootLength tells of a path; a directory's ends with a delimiter.
std::string NormalizeRoot(std::string_view root);
/// Equal for two spellings of one name.  Names compare ignoring case, on every platform.
std::string FoldFileName(std::string_view path);
/// Whether the platform takes two spellings for the same name (POSIX: only when they are equal).  Only for paths that
/// are to lead somewhere.
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
/// `path` as it is meant from within `directory`: behind it, unless it says by itself where it begins.
std::string ResolvePath(std::string_view directory, std::string_view path);
/// `path` in its one spelling: no "." and doubled or trailing delimiters, "x/.." taken away, ".." only at the beginning of
/// a relative path.  "." when nothing is left of it.
std::string NormalizePath(std::string_view path);
/// `path` as seen from directory `base`, when it lies below it; otherwise `path` unchanged.
std::string RelativePathBelow(std::string_view base, std::string_view path);
/// The way from directory `base` to `path`, up by ".." where it has to; `path` unchanged when no way leads there, as to
/// another drive or share, or when `base` is empty.  It can be followed: it takes two names for one only where the
/// platform does.
std::string RelativePath(std::string_view base, std::string_view path);

}  // namespace kestrel
