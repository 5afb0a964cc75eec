#include "Isolation.h"

#include <cctype>
#include <filesystem>
#include <stdexcept>

#include "Place.h"
#include "host/FileName.h"
#include "host/Paths.h"
#include "host/Registry.h"
#include "host/System.h"
#include "host/Text.h"

namespace {

namespace fs = std::filesystem;

constexpr const char* kFolder = "isolated";
constexpr const char* kLibrary = "IsolatedScc" LIBRARY_SUFFIX;
constexpr const char* kHost = "scc-provider-host" PROGRAM_SUFFIX;
constexpr TResString sNotMade{"The library for \"%s\" cannot be written to %s: %s"};

/// The name as that of a folder, on every system.
std::string FolderName(const std::string& name) {
  std::string folder;
  for (const char c : name) {
    const auto byte = static_cast<unsigned char>(c);
    constexpr std::string_view kHex = "0123456789ABCDEF";
    if (std::isalnum(byte) || byte >= 0x80 || c == ' ' || c == '-' || c == '_')
      folder += c;
    else
      folder += {'%', kHex[byte >> 4], kHex[byte & 0xF]};
  }
  return folder;
}

std::string FolderOf(const std::string& name) {
  return PathWithin(PathWithin(RegistryFolder(), kFolder), FolderName(name));
}

std::string PlaceFileOf(const std::string& library) {
  return ChangeFileExt(library, isolation::kPlaceExtension);
}

}  // namespace

std::string Isolate(const std::string& name, const std::string& path) {
  const auto folder = FolderOf(name);
  const auto library = PathWithin(folder, kLibrary);
  try {
    fs::create_directories(ToFilePath(folder));
    WriteFileAtomically(PlaceFileOf(library), isolation::kProviderKey + path + "\n" + isolation::kHostKey +
                                                  PathWithin(ProgramFolder(), kHost) + "\n");
    // Beside it and over it: a client may have the old one loaded.
    const auto fresh = ToFilePath(library + ".new");
    fs::copy_file(ToFilePath(PathWithin(ProgramFolder(), kLibrary)), fresh,
                  fs::copy_options::overwrite_existing);
    fs::rename(fresh, ToFilePath(library));
  } catch (const std::exception& error) {
    throw std::runtime_error(Format(sNotMade, {name, folder, error.what()}));
  }
  return library;
}

std::string IsolatedProvider(const std::string& library) {
  return isolation::ReadPlace(PlaceFileOf(library)).Provider;
}

void RemoveIsolated(const std::string& name) {
  std::error_code ignored;
  fs::remove_all(ToFilePath(FolderOf(name)), ignored);
}
