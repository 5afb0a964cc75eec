// Path functions.  They work on the text alone and never access the file system.  std::filesystem::path is not used for
// this, because mingw's implementation does not recognise "\\server\share\" as a root.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace kestrel {

extern const char PathDelim;
bool IsPathDelim(char c);
/// The length of the root of `path` in bytes (1 for "/x"); 0 for a relative path.
std::size_t RootLength(std::string_view path);
/// Normalizes a root as measured by RootLength().  The result ends with a delimiter, except for a drive alone ("C:").
std::string NormalizeRoot(std::string_view root);
/// Folds case and delimiters for comparison.  File names compare ignoring case on every platform.
std::string FoldFileName(std::string_view path);
/// Whether the file system treats both spellings as one name (POSIX: only if they are equal).  For paths that are to be
/// opened later; use FoldFileName() for all other comparisons.
bool SameFileName(std::string_view a, std::string_view b);

/// The part after the last delimiter.
std::string ExtractFileName(std::string_view path);
/// The directory without a trailing delimiter, except for a root; empty if there is no directory part.
std::string ExtractFileDir(std::string_view path);
/// The file name from its last dot on; empty if there is none.
std::string ExtractFileExt(std::string_view path);
/// Replaces the extension, or appends one.  `extension` is used as it is, with or without a dot.
std::string ChangeFileExt(std::string_view path, std::string_view extension);
/// Appends a delimiter unless there is one; the empty path becomes a lone delimiter.
std::string IncludeTrailingPathDelimiter(std::string_view path);
/// Removes trailing delimiters, except that of a root.
std::string ExcludeTrailingPathDelimiter(std::string_view path);
bool IsAbsolutePath(std::string_view path);
/// Resolves `path` against `directory`; an absolute path is returned unchanged.
std::string ResolvePath(std::string_view directory, std::string_view path);
/// Lexically normalizes `path`: removes ".", resolves "x/..", collapses delimiters and removes trailing ones.  ".."
/// remains only at the start of a relative path.  Returns "." if nothing is left.
std::string NormalizePath(std::string_view path);
/// `path` relative to directory `base` if it is below it, ignoring case; otherwise `path` unchanged.
std::string RelativePathBelow(std::string_view base, std::string_view path);
/// `path` relative to directory `base`, with ".." where needed.  Returns `path` unchanged if there is no relative path, as
/// to another drive or share, or if `base` is empty.  Names are compared with SameFileName(), so the result can be opened.
std::string RelativePath(std::string_view base, std::string_view path);

}  // namespace kestrel
