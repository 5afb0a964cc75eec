// Calls functions of libraries below the toolkit by name, without their headers.
#pragma once

#include <wx/dynlib.h>
#include <wx/log.h>

namespace kestrel {

/// A library that the process has loaded already; finds nothing if it has not.
class TLoadedLibrary {
 public:
  explicit TLoadedLibrary(const wxString& name) {
    const wxLogNull quiet;
    library_.Load(name, wxDL_DEFAULT | wxDL_VERBATIM | wxDL_QUIET);
  }
  /// Null if there is no symbol of that name.
  template <class TFunction>
  TFunction Find(const wxString& name) const {
    return library_.IsLoaded() ? reinterpret_cast<TFunction>(library_.GetSymbol(name)) : nullptr;
  }

 private:
  wxDynamicLibrary library_;
};

}  // namespace kestrel
