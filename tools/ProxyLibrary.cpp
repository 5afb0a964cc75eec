#include "ProxyLibrary.h"

#include <cctype>
#include <filesystem>
#include <stdexcept>

#include "isolation/ProxyConfig.h"
#include "system/FileName.h"
#include "system/Library.h"
#include "system/Paths.h"
#include "system/Registry.h"
#include "system/System.h"
#include "system/Text.h"

namespace kestrel {

namespace {

namespace fs = std::filesystem;

constexpr const char* kLibrary = "IsolatedScc";
constexpr const char* kHostFolder32 = "32-bit";  // in the folder of 64-bit programs, and the reverse
constexpr const char* kHostFolder64 = "64-bit";
constexpr TResString sNoHost{"\"%s\" is a %d-bit library, and the program to run it, %s, does not exist."};
constexpr TResString sCannotWriteLibrary{"The library for \"%s\" cannot be written to %s: %s"};

/// Encodes a provider's name for use in a file name, on every system.
std::string FileNamePart(const std::string& name) {
  return PercentEncode(name, [](char c) {
    const auto byte = static_cast<unsigned char>(c);
    return !std::isalnum(byte) && byte < 0x80 && c != ' ' && c != '-' && c != '_';
  });
}

/// Path of the copy for the provider `name`.  On Windows it has to be beside the libraries that it needs.
std::string ProxyLibraryPath(const std::string& name) {
  return ResolvePath(RegistryFolder(),
                     std::string(kLibrary) + "-" + FileNamePart(FoldCase(name)) + LIBRARY_SUFFIX);
}

/// Path of the program that loads a provider.  Throws std::runtime_error if there is none for its bitness.
std::string HostProgram(const std::string& name, const std::string& provider, const std::string& host) {
  if (CanLoadDirectly(provider)) return ResolvePath(ProgramFolder(), host);
  const int bits = LibraryBits(provider);
  const auto folder = ResolvePath(ProgramFolder(), bits == 32 ? kHostFolder32 : kHostFolder64);
  const auto program = ResolvePath(folder, host);
  if (!FileExists(program)) throw std::runtime_error(Format(sNoHost, {name, bits, program}));
  return program;
}

std::string ConfigFileOf(const std::string& library) {
  return ChangeFileExt(library, isolation::kConfigExtension);
}

}  // namespace

bool CanLoadDirectly(const std::string& library) {
  constexpr int kOwnBits = 8 * sizeof(void*);
  const int bits = LibraryBits(library);
  return bits == 0 || bits == kOwnBits;
}

std::string InstallProxyLibrary(const std::string& name, const std::string& path, bool searchPath,
                                const std::string& host) {
  const auto library = ProxyLibraryPath(name);
  const auto program = HostProgram(name, path, host);
  try {
    fs::create_directories(ToFilePath(ExtractFileDir(library)));
    WriteFileAtomically(ConfigFileOf(library), isolation::kProviderKey + path + "\n" + isolation::kHostKey +
                                                   program + "\n" + isolation::kSearchPathKey +
                                                   (searchPath ? "1" : "0") + "\n");
    // Replaced by renaming, because a client may have the old one loaded.
    const auto fresh = ToFilePath(library + ".new");
    fs::copy_file(ToFilePath(ResolvePath(ProgramFolder(), std::string(kLibrary) + LIBRARY_SUFFIX)), fresh,
                  fs::copy_options::overwrite_existing);
    fs::rename(fresh, ToFilePath(library));
  } catch (const std::exception& error) {
    throw std::runtime_error(Format(sCannotWriteLibrary, {name, library, error.what()}));
  }
  return library;
}

std::string ProviderBehindProxy(const std::string& library) {
  return isolation::ReadProxyConfig(ConfigFileOf(library)).Provider;
}

void RemoveProxyLibrary(const std::string& name) {
  std::error_code ignored;
  for (const auto& file : {ProxyLibraryPath(name), ConfigFileOf(ProxyLibraryPath(name))})
    fs::remove(ToFilePath(file), ignored);
}

}  // namespace kestrel
