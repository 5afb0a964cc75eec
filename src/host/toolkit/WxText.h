// Conversions between UTF-8 strings and the toolkit's strings.
#pragma once

#include <wx/string.h>

#include <string>

namespace kestrel {

/// Text that is not valid UTF-8, such as an old file name, is decoded as Latin-1, because the toolkit would return an empty
/// string.
inline wxString ToWx(const std::string& text) {
  auto result = wxString::FromUTF8(text.data(), text.size());
  return result.empty() && !text.empty() ? wxString(text.data(), wxConvISO8859_1, text.size()) : result;
}

inline std::string FromWx(const wxString& text) { return text.utf8_string(); }

}  // namespace kestrel
