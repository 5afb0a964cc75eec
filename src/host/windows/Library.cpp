#include "host/Library.h"

#include <array>
#include <bit>
#include <filesystem>
#include <fstream>

#include "host/Paths.h"
#include "host/System.h"
#include "host/windows/Api.h"
#include "host/windows/LibraryStrings.h"
#include "host/windows/Wide.h"

namespace {

// What the library needs itself comes from its own folder or the system's: never from the current directory, the
// program's folder or the path, where anybody could put something of the same name.
constexpr DWORD kSearch = LOAD_LIBRARY_SEARCH_DLL_LOAD_DIR | LOAD_LIBRARY_SEARCH_SYSTEM32;

constexpr bool kIs32Bit = sizeof(void*) == 4;
constexpr WORD kOwnMachine = kIs32Bit ? IMAGE_FILE_MACHINE_I386 : IMAGE_FILE_MACHINE_AMD64;

std::string NameOf(WORD machine) {
  switch (machine) {
    case IMAGE_FILE_MACHINE_I386:
      return "32-bit";
    case IMAGE_FILE_MACHINE_AMD64:
      return "64-bit";
    case IMAGE_FILE_MACHINE_ARMNT:
      return "32-bit ARM";
    case IMAGE_FILE_MACHINE_ARM64:
      return "64-bit ARM";
    default:
      return {};
  }
}

/// The processor that a program or library is made for; 0 for any other file.
WORD MachineOf(const std::string& path) {
  std::ifstream file(std::filesystem::path(ToWideFileName(path)), std::ios::binary);
  const auto read = [&file](std::streamoff position, auto value) {
    file.seekg(position).read(reinterpret_cast<char*>(&value), sizeof value);
    return file ? value : decltype(value){};
  };
  if (read(0, WORD{}) != IMAGE_DOS_SIGNATURE) return 0;
  const auto header = read(offsetof(IMAGE_DOS_HEADER, e_lfanew), LONG{});
  if (read(header, DWORD{}) != IMAGE_NT_SIGNATURE) return 0;
  return read(header + LONG{offsetof(IMAGE_NT_HEADERS, FileHeader.Machine)}, WORD{});
}

/// The system has the same words whether the library itself or one that it needs is at fault.
std::string Reason(const std::string& path, DWORD error) {
  if (error == ERROR_MOD_NOT_FOUND && FileExists(path)) return sLacksLibrary;
  if (error != ERROR_BAD_EXE_FORMAT) return SystemMessage(error);
  const auto machine = MachineOf(path);
  if (machine != kOwnMachine && !NameOf(machine).empty())
    return Format(sOtherMachine, {NameOf(machine), NameOf(kOwnMachine)});
  return Format(sNotLoadableImage, {NameOf(kOwnMachine)});
}

void* Find(TModuleHandle module, const std::string& name) {
  return std::bit_cast<void*>(GetProcAddress(static_cast<HMODULE>(module), name.c_str()));
}

}  // namespace

TModuleHandle LoadModule(const std::string& path, std::string* error) {
  const bool absolute = IsAbsolutePath(path);
  const auto module = absolute ? LoadLibraryExW(ToWideFileName(path).c_str(), nullptr, kSearch) : nullptr;
  const auto code = GetLastError();
  if (!module && error) *error = absolute ? Reason(path, code) : path + ": not an absolute path";
  return module;
}

void* FindSymbol(TModuleHandle module, const char* name) {
  if (!module) return nullptr;
  const auto symbol = Find(module, name);
  // Some 32-bit tools export a C function with the underscore that the compiler puts before its name.  With the bytes of
  // its arguments behind it ("_name@8") it would be one that is called otherwise.
  return symbol || !kIs32Bit ? symbol : Find(module, std::string("_") + name);
}

void FreeModule(TModuleHandle module) {
  if (module) FreeLibrary(static_cast<HMODULE>(module));
}
