// The one crossing between the system's 8-bit text and the toolkit's strings.
#pragma once

#include <wx/string.h>

#include <string>

namespace kestrel {

/// `text` for display.  Bytes that are not valid UTF-8 (a provider's message, an old file name) are read as Latin-1, so
/// that the user sees them rather than nothing.
inline wxString ToWx(const std::string& text) {
  auto result = wxString::FromUTF8(text.data(), text.size());
  return result.empty() && !text.empty() ? wxString(text.data(), wxConvISO8859_1, text.size()) : result;
}

inline std::string FromWx(const wxString& text) { return text.utf8_string(); }

}  // namespace kestrel
