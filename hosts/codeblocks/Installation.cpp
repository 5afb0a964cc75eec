#include "Installation.h"

#include <configmanager.h>
#include <dlfcn.h>
#include <infowindow.h>
#include <wx/utils.h>

#include <filesystem>

#include "PluginStrings.h"
#include "Sdk.h"
#include "system/FileName.h"
#include "system/Library.h"
#include "system/System.h"

namespace kestrel::codeblocks {

namespace {

namespace fs = std::filesystem;

constexpr const char* kProviderPage = "help/installing-a-provider.html";
constexpr const char* kRegister = "scc-register";
constexpr const char* kProviderHost = "scc-provider-host";
constexpr const char* kProvider = "SubversionScc.so";
constexpr const char* kProviderName = "Subversion";
constexpr unsigned kShownMs = 20000;

/// Whether the plug-in has registered the provider.
constexpr const char* kRegisteredKey = "/provider_registered";

ConfigManager& Settings() { return *Manager::Get()->GetConfigManager("kestrelide"); }

/// Runs scc-register; returns its exit code and the number of lines that it printed.
std::pair<long, std::size_t> RunRegister(const std::string& arguments) {
  wxArrayString output;
  wxArrayString errors;
  const auto command = Format("\"%s\" %s", {InstalledFile(kRegister), arguments});
  const long code =
      wxExecute(ToWx(command), output, errors, wxEXEC_SYNC | wxEXEC_NODISABLE | wxEXEC_NOEVENTS);
  for (const auto& line : errors) Manager::Get()->GetLogManager()->Log(line);
  return {code, output.size()};
}

}  // namespace

std::string InstalledFile(const std::string& name) {
  Dl_info library{};
  dladdr(reinterpret_cast<const void*>(&LoadModule), &library);
  return ResolvePath(ExtractFileDir(FullPath(library.dli_fname)), name);
}

void RegisterProvider() {
  std::error_code ignored;                                // another user's files are executable already
  for (const auto* program : {kRegister, kProviderHost})  // the IDE unpacks them as plain files
    fs::permissions(ToFilePath(InstalledFile(program)), fs::perms::owner_exec, fs::perm_options::add,
                    ignored);
  const auto [code, lines] =
      RunRegister(Format("add %s \"%s\" --isolated --if-none", {kProviderName, InstalledFile(kProvider)}));
  if (code == 0 && lines > 0) Settings().Write(kRegisteredKey, true);
  if (code != 0)
    InfoWindow::Display(ToWx(sPluginTitle), ToWx(Format(sNoProvider, {InstalledFile(kProviderPage)})),
                        kShownMs);
}

void UnregisterProvider() {
  if (!Settings().ReadBool(kRegisteredKey)) return;
  RunRegister(Format("remove %s", {kProviderName}));
  Settings().UnSet(kRegisteredKey);
}

}  // namespace kestrel::codeblocks
