// Conversions between UTF-8 and the UTF-16 of Windows.
#pragma once

#include <string>
#include <string_view>

namespace kestrel {

/// Invalid bytes become replacement characters.
std::wstring ToWide(std::string_view text);
std::string FromWide(std::wstring_view text);

/// A file name for Windows functions: with backslashes, and with the prefix "\\?\" if it is absolute and too long otherwise.
std::wstring ToWideFileName(std::string_view path);

/// The system's message for an error of GetLastError(), without a line ending.
std::string SystemMessage(unsigned long error);

}  // namespace kestrel
