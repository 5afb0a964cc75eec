#include "ProxyLibrary.h"

#include <cctype>
#include <filesystem>
#include <stdexcept>

#include "ProxyConfig.h"
#include "system/FileName.h"
#include "system/Paths.h"
#include "system/Registry.h"
#include "system/System.h"
#include "system/Text.h"

namespace kestrel {

namespace {

namespace fs = std::filesystem;

constexpr const char* kLibrary = "IsolatedScc";
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

std::string ConfigFileOf(const std::string& library) {
  return ChangeFileExt(library, isolation::kConfigExtension);
}

}  // namespace

std::string InstallProxyLibrary(const std::string& name, const std::string& path, bool searchPath,
                                const std::string& host) {
  const auto library = ProxyLibraryPath(name);
  try {
    fs::create_directories(ToFilePath(ExtractFileDir(library)));
    WriteFileAtomically(ConfigFileOf(library), isolation::kProviderKey + path + "\n" + isolation::kHostKey +
                                                   ResolvePath(ProgramFolder(), host) + "\n" +
                                                   isolation::kSearchPathKey + (searchPath ? "1" : "0") +
                                                   "\n");
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
