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

constexpr const char* kLibrary = "IsolatedScc";
constexpr const char* kHost = "scc-provider-host" PROGRAM_SUFFIX;
constexpr TResString sNotMade{"The library for \"%s\" cannot be written to %s: %s"};

/// The name as part of a file's, on every system.
std::string FileNamePart(const std::string& name) {
  std::string part;
  for (const char c : name) {
    const auto byte = static_cast<unsigned char>(c);
    constexpr std::string_view kHex = "0123456789ABCDEF";
    if (std::isalnum(byte) || byte >= 0x80 || c == ' ' || c == '-' || c == '_')
      part += c;
    else
      part += {'%', kHex[byte >> 4], kHex[byte & 0xF]};
  }
  return part;
}

/// On Windows that is where the libraries are which it needs itself.
std::string LibraryOf(const std::string& name) {
  return ResolvePath(RegistryFolder(),
                     std::string(kLibrary) + "-" + FileNamePart(FoldCase(name)) + LIBRARY_SUFFIX);
}

std::string PlaceFileOf(const std::string& library) {
  return ChangeFileExt(library, isolation::kPlaceExtension);
}

}  // namespace

std::string Isolate(const std::string& name, const std::string& path) {
  const auto library = LibraryOf(name);
  try {
    fs::create_directories(ToFilePath(ExtractFileDir(library)));
    WriteFileAtomically(PlaceFileOf(library), isolation::kProviderKey + path + "\n" + isolation::kHostKey +
                                                  ResolvePath(ProgramFolder(), kHost) + "\n");
    // Beside it and over it: a client may have the old one loaded.
    const auto fresh = ToFilePath(library + ".new");
    fs::copy_file(ToFilePath(ResolvePath(ProgramFolder(), std::string(kLibrary) + LIBRARY_SUFFIX)), fresh,
                  fs::copy_options::overwrite_existing);
    fs::rename(fresh, ToFilePath(library));
  } catch (const std::exception& error) {
    throw std::runtime_error(Format(sNotMade, {name, library, error.what()}));
  }
  return library;
}

std::string IsolatedProvider(const std::string& library) {
  return isolation::ReadPlace(PlaceFileOf(library)).Provider;
}

void RemoveIsolated(const std::string& name) {
  std::error_code ignored;
  for (const auto& file : {LibraryOf(name), PlaceFileOf(LibraryOf(name))})
    fs::remove(ToFilePath(file), ignored);
}
