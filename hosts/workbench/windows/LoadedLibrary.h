// Functions of libraries below the toolkit, found by name and called without the libraries' headers.
#pragma once

#include <wx/dynlib.h>
#include <wx/log.h>

namespace kestrel::workbench {

/// A library that the process has loaded already; without it nothing is found.
class TLoadedLibrary {
 public:
  explicit TLoadedLibrary(const wxString& name) {
    const wxLogNull quiet;
    library_.Load(name, wxDL_DEFAULT | wxDL_VERBATIM | wxDL_QUIET);
  }
  /// Null when there is none of that name.
  template <class TFunction>
  TFunction Find(const wxString& name) const {
    return library_.IsLoaded() ? reinterpret_cast<TFunction>(library_.GetSymbol(name)) : nullptr;
  }

 private:
  wxDynamicLibrary library_;
};

}  // namespace kestrel::workbench
