#include "system/Library.h"

#include <array>
#include <bit>
#include <filesystem>
#include <fstream>
#include <optional>
#include <vector>

#include "system/Paths.h"
#include "system/System.h"
#include "system/windows/Api.h"
#include "system/windows/LibraryStrings.h"
#include "system/windows/Wide.h"

namespace kestrel {

namespace {

/// Scoped: makes LOAD_LIBRARY_SEARCH_USER_DIRS search the folders in PATH.  AddDllDirectory rejects relative paths, so that
/// the current directory is not searched.
class TPathFolders {
 public:
  TPathFolders() {
    std::wstring path(GetEnvironmentVariableW(L"PATH", nullptr, 0), L'\0');
    path.resize(GetEnvironmentVariableW(L"PATH", path.data(), static_cast<DWORD>(path.size())));
    std::erase(path, L'"');
    // The order is not documented; in practice the folder that was added last is searched first.
    for (auto end = path.size(); end != path.npos && !path.empty();) {
      const auto before = end == 0 ? path.npos : path.rfind(L';', end - 1);
      const auto begin = before == path.npos ? 0 : before + 1;
      if (const auto added = AddDllDirectory(path.substr(begin, end - begin).c_str()))
        added_.push_back(added);
      end = before;
    }
  }
  TPathFolders(const TPathFolders&) = delete;
  TPathFolders& operator=(const TPathFolders&) = delete;
  ~TPathFolders() {
    for (const auto added : added_) RemoveDllDirectory(added);
  }

 private:
  std::vector<DLL_DIRECTORY_COOKIE> added_;
};

/// The module, or the error code.
struct TLoaded {
  HMODULE Module;
  DWORD Error;
};

TLoaded Load(const std::string& path, TDependencySearch search) {
  std::optional<TPathFolders> folders;
  DWORD places = LOAD_LIBRARY_SEARCH_DLL_LOAD_DIR | LOAD_LIBRARY_SEARCH_SYSTEM32;
  if (search == TDependencySearch::OwnFolderPath) {
    folders.emplace();
    places |= LOAD_LIBRARY_SEARCH_USER_DIRS;
  }
  const auto module = LoadLibraryExW(ToWideFileName(path).c_str(), nullptr, places);
  return {module, GetLastError()};
}

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

/// The machine type of a program or library; 0 for any other file.
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

/// The reason why a library cannot be loaded.  The system's messages do not tell whether the library itself or a dependency
/// is the cause.
std::string Reason(const std::string& path, TDependencySearch search, DWORD error) {
  if (error == ERROR_MOD_NOT_FOUND && FileExists(path))
    return search == TDependencySearch::OwnFolder ? sLacksLibrary : sLacksLibraryInPath;
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

TModuleHandle LoadModule(const std::string& path, std::string* error, TDependencySearch search) {
  if (!IsAbsolutePath(path)) {
    if (error) *error = path + ": not an absolute path";
    return nullptr;
  }
  const auto loaded = Load(path, search);
  if (!loaded.Module && error) *error = Reason(path, search, loaded.Error);
  return loaded.Module;
}

void* FindSymbol(TModuleHandle module, const char* name) {
  if (!module) return nullptr;
  const auto symbol = Find(module, name);
  // Some 32-bit tools export a C function with the compiler's leading underscore.  Decorated names with "@8" at the end are
  // not tried, because they have another calling convention.
  return symbol || !kIs32Bit ? symbol : Find(module, std::string("_") + name);
}

int LibraryBits(const std::string& path) {
  const auto machine = MachineOf(path);
  return machine == IMAGE_FILE_MACHINE_I386 ? 32 : machine == IMAGE_FILE_MACHINE_AMD64 ? 64 : 0;
}

void UnloadModule(TModuleHandle module) {
  if (module) FreeLibrary(static_cast<HMODULE>(module));
}

}  // namespace kestrel
