// The system's own text is UTF-16; everybody else here speaks UTF-8.
#pragma once

#include <string>
#include <string_view>

namespace kestrel {

/// Bytes that are no UTF-8 become replacement characters.
std::wstring ToWide(std::string_view text);
std::string FromWide(std::wstring_view text);

/// A file name as the system's calls take it: delimiters of its own kind, and beyond the classic limit of 260 characters.
std::wstring ToWideFileName(std::string_view path);

/// The system's own words for an error of GetLastError(), without a line end.
std::string SystemMessage(unsigned long error);

}  // namespace kestrel
