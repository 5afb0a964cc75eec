#include "host/Library.h"

#include <bit>

#include "host/Paths.h"
#include "host/windows/Api.h"
#include "host/windows/Wide.h"

namespace {

// What the library needs itself comes from its own folder or the system's: never from the current directory, the
// program's folder or the path, where anybody could put something of the same name.
constexpr DWORD kSearch = LOAD_LIBRARY_SEARCH_DLL_LOAD_DIR | LOAD_LIBRARY_SEARCH_SYSTEM32;

std::string Reason(DWORD error) {
  // The system's words for it speak of an application that is not valid.
  if (error == ERROR_BAD_EXE_FORMAT)
    return "it is no library for this kind of program (a " + std::to_string(sizeof(void*) * 8) +
           "-bit program loads " + std::to_string(sizeof(void*) * 8) + "-bit libraries only)";
  return SystemMessage(error);
}

}  // namespace

TModuleHandle LoadModule(const std::string& path, std::string* error) {
  const bool absolute = IsAbsolutePath(path);
  const auto module = absolute ? LoadLibraryExW(ToWideFileName(path).c_str(), nullptr, kSearch) : nullptr;
  const auto code = GetLastError();
  if (!module && error) *error = absolute ? Reason(code) : path + ": not an absolute path";
  return module;
}

void* FindSymbol(TModuleHandle module, const char* name) {
  return module ? std::bit_cast<void*>(GetProcAddress(static_cast<HMODULE>(module), name)) : nullptr;
}

void FreeModule(TModuleHandle module) {
  if (module) FreeLibrary(static_cast<HMODULE>(module));
}
